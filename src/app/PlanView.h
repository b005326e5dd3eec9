#pragma once

#include "app/PlanPicture.h"
#include "app/PlanTable.h"
#include "engine/Engine.h"
#include "paint/PlanPainter.h"

#include <QAbstractScrollArea>
#include <QDateTime>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace shell
{
class Shell;
}

namespace app
{

class PlanKeys;

/// Shows the plan from the values of the last refresh. The time axis, the room names, the places
/// and the totals stay in view while the boxes scroll.
class PlanView : public QAbstractScrollArea
{
public:
    /// Runs a user's action on the program.
    using Forward = std::function<void(const std::function<void()>& action)>;
    /// A click on one of the three marker images of a box, or one of these two that mark nothing.
    using MarkerClick = std::function<void(int marker)>;
    static constexpr int kNoBox = 0;    ///< where no box is
    static constexpr int kTooLate = -1; ///< meant for a plan that is not there any more

    PlanView(shell::Shell& shell, Forward forward, MarkerClick markerClick);
    ~PlanView() override;

    /// A place of the plan that somebody asks about.
    struct Spot {
        QString room;
        int slot = 0;                       ///< counting from 1; 0 for the room as a whole
        const plan::PlanBox* box = nullptr; ///< of the last refresh; null where there is none
    };
    /// What is done with it; nothing unless somebody says so.
    struct Asking {
        std::function<void(const QString& room)> openRoom; ///< a double click on its name
        /// A click on the name of the greyed room, whose boxes are not drawn.
        std::function<void(const QString& room)> openGreyed;
        std::function<void(const Spot& spot, QPoint screenPoint)> showMenu;
    };
    void setAsking(Asking asking) { m_asking = std::move(asking); }

    /// What tells the time for the line of the clock, which stands on today's plan.
    void setClock(std::function<QDateTime()> now);

    /// Frames the box of a room's slot, or its row for slot 0 and where no box is, and brings it
    /// into view. The next drawing, a click or Escape takes the frame away.
    void frame(const QString& room, int slot);
    /// Where the frame lies in the plan, in device pixels, unscrolled; empty without one.
    [[nodiscard]] QRectF framed() const;

    /// Its room; empty without one.
    [[nodiscard]] QString framedRoom() const { return m_frame ? m_frame->room : QString(); }
    void unframe();
    /// The cell that the frame is about; nothing without one, and where the room has no row.
    [[nodiscard]] std::optional<PlanTable::Cell> framedCell() const;
    /// The room that somebody looks at: of the frame, else of the cursor; empty without either.
    [[nodiscard]] QString roomInFocus() const;

    /// The cell that the keyboard is on (see PlanKeys.h).
    [[nodiscard]] std::optional<PlanTable::Cell> cursor() const;
    /// The cursor has moved, come or gone: shows it, and tells screen readers.
    void showCursor();
    /// The cell at the top left of what is scrolled into view, names aside; nothing without rows.
    [[nodiscard]] std::optional<PlanTable::Cell> firstInSight() const;
    /// How many whole rows there is room for, 1 upward.
    [[nodiscard]] int rowsInSight() const;
    /// Opens the menu of a cell, beside it.
    void openMenu(const PlanTable::Cell& cell);
    /// Goes to another page, as the user's action.
    void goToPage(void (engine::Engine::*page)());
    /// Whether the boxes stand for what is to be clicked: no refresh is on its way or has just
    /// changed them.
    [[nodiscard]] bool takesClicks() const;

    /// Fits the plan to the view anew: the rows, their number or the time axis have changed.
    void fit();
    /// A refresh that has taken so long shows its rows as they come; others show all at once.
    static constexpr std::chrono::milliseconds kShowingPatience{80};

    /// Paints what a refresh in progress has worked out since the last call, once it has taken
    /// `patience`.
    void showProgress(std::chrono::milliseconds patience = kShowingPatience);
    /// Paints whatever is not yet in the picture and tells screen readers what has changed.
    void showAll();

    /// While what was drawn last is not what has been asked for, it stands there paled: an answer
    /// is being waited for, and nothing of it is known. The first row that is drawn ends that, too.
    /// What is clicked in it meanwhile marks nothing: by then another plan stands there.
    void setOutOfDate(bool outOfDate);

    /// The target that the view draws with.
    [[nodiscard]] const paint::DrawingTarget& target() const { return m_target; }
    /// Where a point of the plan (device pixels, unscrolled) lies in the viewport.
    [[nodiscard]] QPointF toViewport(QPointF planPoint) const;
    /// The tooltip at a point of the viewport; empty where there is none.
    [[nodiscard]] QString toolTipAt(QPoint point) const;
    /// All that is to be read of a cell: its tooltip, and the classes behind a box's counter.
    [[nodiscard]] QString fullText(const PlanTable::Cell& cell) const;

    /// The plan in words, to be asked at once and not kept.
    [[nodiscard]] PlanTable table() const
    {
        return {m_engine.state(), m_engine.content(), m_target};
    }
    /// Where a cell of the table lies on the screen, also one that is scrolled out of sight.
    [[nodiscard]] QRect onScreen(const PlanTable::Cell& cell) const;
    /// Whether some of the cell is scrolled into view.
    [[nodiscard]] bool isInSight(const PlanTable::Cell& cell) const;
    /// What the view shows at a point of the screen: over the names and places it is the room.
    [[nodiscard]] std::optional<PlanTable::Cell> cellUnder(QPoint screenPoint) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
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

    /// What the user looks for.
    struct Frame {
        QString room;
        int slot = 0;
        std::uint64_t refresh = 0; ///< of which drawing
    };

    /// What is under the mouse: its row, row 0 included, and the hour of the day.
    struct Lit {
        std::optional<int> row;
        std::optional<int> hour;

        friend bool operator==(const Lit&, const Lit&) = default;
    };

    /// The page as `openAtTop` tells one from another.
    struct PageShown {
        std::int32_t start = 0;
        QString firstRoom;

        friend bool operator==(const PageShown&, const PageShown&) = default;
    };

    [[nodiscard]] int rowsWanted() const;
    void openAtTop();
    void bringIntoView(const QRectF& place);
    void paintFrame(QPainter& painter, const Bands& view) const;
    void paintCursor(QPainter& painter, const Bands& view) const;
    void paintRing(QPainter& painter, const Bands& view, const QRectF& place, QColor line,
                   int width) const;
    /// The whole row of a room's label, in device pixels, unscrolled.
    [[nodiscard]] QRectF rowAcross(const form::Place& room) const;
    [[nodiscard]] Lit litAt(QPoint point) const;
    void light(const Lit& lit);
    void paintLights(QPainter& painter, const Bands& view) const;
    /// Where the line of the clock stands, in minutes since midnight; nothing on another day.
    [[nodiscard]] std::optional<int> clockMinute() const;
    void followClock();
    void paintClock(QPainter& painter, const Bands& view) const;
    /// The greyed room, where its name or places lie there; empty elsewhere.
    [[nodiscard]] QString greyedRoomAt(QPoint point) const;
    /// The room whose name or places lie there, the greyed one included; empty elsewhere.
    [[nodiscard]] QString roomAt(QPoint point) const;
    [[nodiscard]] std::optional<Spot> spotAt(QPoint point) const;
    [[nodiscard]] QString boxText(const plan::PlanRow& row, const plan::PlanBox& box) const;
    /// Of a place without a box; `x` is in device pixels of the plan, unscrolled.
    [[nodiscard]] QString emptyText(const plan::PlanRow& row, double x) const;
    /// Where the hours that are shown end, in device pixels, unscrolled.
    [[nodiscard]] double axisEnd() const { return m_target.onAxis(m_hours.to); }
    [[nodiscard]] plan::ShownHours hoursWanted() const;
    [[nodiscard]] Bands bands() const;
    [[nodiscard]] paint::PlanScene scene() const;
    [[nodiscard]] QPointF toPlan(QPoint viewportPoint) const;
    /// Pixels that the totals line takes: none while there are no totals to come.
    [[nodiscard]] int totalsHeight() const;
    void updateScrollBars();
    [[nodiscard]] QSize planSize() const;
    void drawPicture();
    void drawAll();
    void noteShown();
    /// Where a cell lies in the viewport; the rooms' names stay when the boxes scroll sideways.
    [[nodiscard]] QRect inViewport(const PlanTable::Cell& cell) const;

    shell::Shell& m_shell;
    engine::Engine& m_engine;
    Forward m_forward;
    MarkerClick m_markerClick;
    paint::DrawingTarget m_target;
    PlanPicture m_picture;
    plan::ShownHours m_hours; ///< what of the time axis is shown
    int m_lastRowHeight = 0;
    int m_lastRows = 0;
    PageShown m_page;
    int m_totalsHeight = 0;
    Asking m_asking;
    std::optional<Frame> m_frame;
    std::unique_ptr<PlanKeys> m_keys;
    bool m_focusIsShown = false; ///< the keyboard has led here
    Lit m_lit;
    std::function<QDateTime()> m_now = [] { return QDateTime::currentDateTime(); };
    std::optional<int> m_clockMinute; ///< that was drawn last
    bool m_isOutOfDate = false;
    std::uint64_t m_shownRefresh = 0; ///< of which refresh the picture is
    std::size_t m_shownRows = 0;      ///< how many of its rows are in the picture
    bool m_rowsAreNew = false;        ///< of the refresh in progress some are drawn
    bool m_clicksAreOld = false;      ///< those to come were meant for another plan
};

} // namespace app
