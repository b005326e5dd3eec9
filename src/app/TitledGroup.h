#pragma once

#include <QGroupBox>

namespace app
{

/// A group of controls under a title. The key of the title leads to where F6 enters the group, and
/// not to the control that was used last.
class TitledGroup : public QGroupBox
{
public:
    using QGroupBox::QGroupBox;

protected:
    bool event(QEvent* event) override;
    /// Underlines the letter of the title's key, which a style sheet leaves out.
    void paintEvent(QPaintEvent* event) override;
};

} // namespace app
