#pragma once

#include <QLabel>

namespace app
{

/// A label of one line that may be narrower than its text: then it ends with "…", and the whole
/// text is its tooltip.
class ElidedLabel : public QLabel
{
public:
    ElidedLabel();

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace app
