#pragma once

#include <QObject>
#include <vector>

class QWidget;

namespace app
{

/// F6 and Shift+F6 lead from one part of the window to the next and to the one before, around it.
class FocusGroups : public QObject
{
public:
    /// The parts, in order; those that hide or have nothing to lead to are passed over.
    FocusGroups(QWidget& window, std::vector<QWidget*> groups);

    /// Where a part is entered: at its focus proxy, at itself, or at the first of its controls that
    /// Tab reaches; null when there is none.
    [[nodiscard]] static QWidget* entryOf(QWidget& group);

private:
    void go(int step);

    std::vector<QWidget*> m_groups;
};

} // namespace app
