#pragma once

#include "app/PlanPicture.h"
#include "plan/PlanPainter.h"

#include <QAbstractScrollArea>
#include <functional>

namespace shell
{
class Shell;
}

namespace app
{

/// Shows the plan from the values of the last refresh. The time axis, the room names, the places
/// and the totals stay in view while the boxes scroll.
class PlanView : public QAbstractScrollArea
{
public:
    /// Runs a user's action on the program.
    using Forward = std::function<void(const std::function<void()>& action)>;
    /// A click on one of the three marker images of a box.
    using MarkerClick = std::function<void(int marker)>;

    PlanView(shell::Shell& shell, Forward forward, MarkerClick markerClick);

    /// Fits the plan to the view anew: the rows, their number or the time axis have changed.
    void fit();
    /// Repaints what a refresh has drawn since the last call.
    void showProgress();
    /// Repaints everything.
    void showAll();

    /// The target that the view draws with.
    [[nodiscard]] const plan::DrawingTarget& target() const { return m_target; }
    /// Where a point of the plan (device pixels, unscrolled) lies in the viewport.
    [[nodiscard]] QPointF toViewport(QPointF planPoint) const;
    /// The tooltip at a point of the viewport; empty where there is none.
    [[nodiscard]] QString toolTipAt(QPoint point) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;

private:
    /// The view cut into its bands, in viewport pixels.
    struct Bands {
        QRect ticks;
        QRect names;
        QRect boxes;
        QRect places;
        QRect totals;
    };

    [[nodiscard]] Bands bands() const;
    [[nodiscard]] plan::PlanScene scene() const;
    [[nodiscard]] QPointF toPlan(QPoint viewportPoint) const;
    /// Pixels that the totals line takes: none while there are no totals to come.
    [[nodiscard]] int totalsHeight() const;
    void updateScrollBars();
    [[nodiscard]] QSize planSize() const;
    void drawPicture();
    /// The tooltip of a row's name and places, `y` in twips of the plan.
    [[nodiscard]] QString rowToolTip(double y) const;

    shell::Shell& m_shell;
    Forward m_forward;
    MarkerClick m_markerClick;
    plan::DrawingTarget m_target;
    PlanPicture m_picture;
    int m_lastRowHeight = 0;
    int m_lastRows = 0;
    int m_totalsHeight = 0;
};

} // namespace app
