#include "app/PlanAccess.h"

#include "app/PlanTable.h"
#include "app/PlanView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>
#include <map>
#include <memory>
#include <utility>

namespace app
{
namespace
{

class PlanTableAccess;

/// A cell of the plan for screen readers. It keeps only where it stands in the table: what it says
/// is read from the plan at each question. Without such a cell in the plan it is not valid.
class PlanCellAccess final : public QAccessibleInterface, public QAccessibleTableCellInterface
{
public:
    PlanCellAccess(const PlanTableAccess& table, int row, int column)
        : m_table(table), m_row(row), m_column(column)
    {
    }

    bool isValid() const override { return cell().has_value(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent()->window(); }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}
    QRect rect() const override;
    QAccessible::Role role() const override
    {
        return m_column == 0 ? QAccessible::RowHeader : QAccessible::Cell;
    }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    bool isSelected() const override { return false; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_row; }
    int columnExtent() const override
    {
        const auto found = cell();
        return found ? found->span : 1;
    }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    [[nodiscard]] std::optional<PlanTable::Cell> cell() const;

    const PlanTableAccess& m_table; ///< outlives its cells
    int m_row;
    int m_column;
};

/// The plan for screen readers: a table whose children are its cells, row by row. The scroll bars
/// are left out: the cells have their places wherever the plan is scrolled to.
class PlanTableAccess final : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit PlanTableAccess(PlanView& view) : QAccessibleWidget(&view, QAccessible::Table) {}
    PlanTableAccess(const PlanTableAccess&) = delete;
    PlanTableAccess& operator=(const PlanTableAccess&) = delete;
    ~PlanTableAccess() override { forgetCells(); }

    /// Null when the view is being destroyed.
    [[nodiscard]] PlanView* view() const { return dynamic_cast<PlanView*>(object()); }
    /// Nothing when the view is being destroyed.
    [[nodiscard]] std::optional<PlanTable> plan() const
    {
        const PlanView* shown = view();
        return shown != nullptr ? std::optional<PlanTable>(shown->table()) : std::nullopt;
    }
    void tellChanges(const SendAccessEvent& send);
    void tellCursor(const SendAccessEvent& send);

    /// The cell that the keyboard is on.
    [[nodiscard]] QAccessibleInterface* cursorCell() const;
    QAccessibleInterface* focusChild() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text which) const override;
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override
    {
        const auto table = plan();
        return table ? table->columnCount() : 0;
    }
    int rowCount() const override
    {
        const auto table = plan();
        return table ? table->rowCount() : 0;
    }
    // Nothing in the plan can be selected.
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool isRowSelected(int /*row*/) const override { return false; }
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {} // comes from here

private:
    [[nodiscard]] bool isFocused() const { return view() != nullptr && view()->hasFocus(); }
    [[nodiscard]] QAccessibleInterface* accessOf(const std::optional<PlanTable::Cell>& cell) const;
    void forgetCells();

    /// The cells that somebody has asked for, by row and column; the toolkit owns them.
    mutable std::map<std::pair<int, int>, QAccessible::Id> m_cells;
    // What was told last.
    QStringList m_words;
    QString m_title;
    QString m_note;
};

std::optional<PlanTable::Cell> PlanCellAccess::cell() const
{
    const auto plan = m_table.plan();
    const auto found = plan ? plan->cellAt(m_row, m_column) : std::nullopt;
    return found && found->column == m_column ? found : std::nullopt;
}

QAccessibleInterface* PlanCellAccess::parent() const
{
    return QAccessible::queryAccessibleInterface(m_table.object());
}

QString PlanCellAccess::text(QAccessible::Text which) const
{
    const auto found = cell();
    return found && which == QAccessible::Name ? m_table.plan()->nameOf(*found) : QString();
}

QRect PlanCellAccess::rect() const
{
    const auto found = cell();
    return found ? m_table.view()->onScreen(*found) : QRect();
}

QAccessible::State PlanCellAccess::state() const
{
    QAccessible::State state;
    const auto found = cell();
    if (!found) {
        state.invalid = true;
        return state;
    }
    const auto cursor = m_table.view()->cursor();
    const bool isCursor = cursor && cursor->row == found->row && cursor->column == found->column;
    state.readOnly = true;
    state.focusable = true;
    state.active = isCursor;
    state.focused = isCursor && m_table.view()->hasFocus();
    state.invisible = !m_table.view()->isVisible();
    state.offscreen = !m_table.view()->isInSight(*found);
    return state;
}

QList<QAccessibleInterface*> PlanCellAccess::rowHeaderCells() const
{
    QAccessibleInterface* room = m_table.cellAt(m_row, 0);
    return room != nullptr ? QList<QAccessibleInterface*>{room} : QList<QAccessibleInterface*>{};
}

QAccessibleInterface* PlanTableAccess::accessOf(const std::optional<PlanTable::Cell>& cell) const
{
    if (!cell) {
        return nullptr;
    }
    const auto [entry, isNew] = m_cells.try_emplace({cell->row, cell->column}, 0);
    if (isNew) {
        auto access = std::make_unique<PlanCellAccess>(*this, cell->row, cell->column);
        // The toolkit owns it from here on.
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
        entry->second = QAccessible::registerAccessibleInterface(access.release());
    }
    return QAccessible::accessibleInterface(entry->second);
}

void PlanTableAccess::forgetCells()
{
    for (const auto& [place, id] : std::exchange(m_cells, {})) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

int PlanTableAccess::childCount() const
{
    const auto table = plan();
    std::size_t count = 0;
    for (int row = 0; table && row < table->rowCount(); ++row) {
        count += table->cellsOf(row).size();
    }
    return static_cast<int>(count);
}

QAccessibleInterface* PlanTableAccess::child(int index) const
{
    const auto table = plan();
    auto left = static_cast<std::size_t>(std::max(index, 0));
    for (int row = 0; table && index >= 0 && row < table->rowCount(); ++row) {
        const std::vector<PlanTable::Cell> cells = table->cellsOf(row);
        if (left < cells.size()) {
            return accessOf(cells[left]);
        }
        left -= cells.size();
    }
    return nullptr;
}

int PlanTableAccess::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* wanted = dynamic_cast<const PlanCellAccess*>(child);
    const auto table = plan();
    int index = 0;
    for (int row = 0; wanted != nullptr && table && row < table->rowCount(); ++row) {
        for (const PlanTable::Cell& cell : table->cellsOf(row)) {
            if (cell.row == wanted->rowIndex() && cell.column == wanted->columnIndex()) {
                return index;
            }
            ++index;
        }
    }
    return -1;
}

QAccessibleInterface* PlanTableAccess::childAt(int x, int y) const
{
    const PlanView* shown = view();
    return shown != nullptr ? accessOf(shown->cellUnder({x, y})) : nullptr;
}

QAccessibleInterface* PlanTableAccess::cellAt(int row, int column) const
{
    const auto table = plan();
    return table ? accessOf(table->cellAt(row, column)) : nullptr;
}

QString PlanTableAccess::columnDescription(int column) const
{
    const auto table = plan();
    return table ? table->columnTitle(column) : QString();
}

QString PlanTableAccess::rowDescription(int row) const
{
    const auto table = plan();
    const auto room = table ? table->cellAt(row, 0) : std::nullopt;
    return room ? table->nameOf(*room) : QString();
}

QString PlanTableAccess::text(QAccessible::Text which) const
{
    const auto table = plan();
    if (table && which == QAccessible::Name) {
        return table->title();
    }
    return table && which == QAccessible::Description ? table->note()
                                                      : QAccessibleWidget::text(which);
}

void PlanTableAccess::tellChanges(const SendAccessEvent& send)
{
    const auto table = plan();
    if (!table) {
        return;
    }
    const auto isNew = [](auto& told, auto now) {
        const bool differs = told != now;
        told = std::move(now);
        return differs;
    };
    if (isNew(m_title, table->title())) {
        QAccessibleEvent event(object(), QAccessible::NameChanged);
        send(event);
    }
    if (isNew(m_note, table->note())) {
        QAccessibleEvent event(object(), QAccessible::DescriptionChanged);
        send(event);
    }
    if (isNew(m_words, table->words())) {
        forgetCells(); // a cell of another plan is another cell
        QAccessibleTableModelChangeEvent event(object(),
                                               QAccessibleTableModelChangeEvent::ModelReset);
        send(event);
        if (cursorCell() != nullptr) {
            tellCursor(send); // which is to be read out anew
        }
    }
}

QAccessibleInterface* PlanTableAccess::cursorCell() const
{
    const PlanView* shown = view();
    return shown != nullptr ? accessOf(shown->cursor()) : nullptr;
}

QAccessibleInterface* PlanTableAccess::focusChild() const
{
    QAccessibleInterface* cell = isFocused() ? cursorCell() : nullptr;
    return cell != nullptr ? cell : QAccessibleWidget::focusChild();
}

void PlanTableAccess::tellCursor(const SendAccessEvent& send)
{
    if (!isFocused()) {
        return;
    }
    if (QAccessibleInterface* cell = cursorCell()) {
        QAccessibleEvent event(cell, QAccessible::Focus);
        send(event);
    } else {
        QAccessibleEvent event(object(), QAccessible::Focus);
        send(event);
    }
}

/// The toolkit asks for each class that the object derives from; `PlanView` has no name there.
QAccessibleInterface* makeAccess(const QString& /*className*/, QObject* object)
{
    auto* view = dynamic_cast<PlanView*>(object);
    return view != nullptr ? std::make_unique<PlanTableAccess>(*view).release() : nullptr;
}

} // namespace

void offerPlanToScreenReaders()
{
    QAccessible::installFactory(makeAccess);
}

void tellChanges(PlanView& view, const SendAccessEvent& send)
{
    auto* access = dynamic_cast<PlanTableAccess*>(QAccessible::queryAccessibleInterface(&view));
    if (access != nullptr) {
        access->tellChanges(send);
    }
}

void tellCursor(PlanView& view, const SendAccessEvent& send)
{
    auto* access = dynamic_cast<PlanTableAccess*>(QAccessible::queryAccessibleInterface(&view));
    if (access != nullptr) {
        access->tellCursor(send);
    }
}

void tellScreenReadersOfCursor(PlanView& view)
{
    if (QAccessible::isActive()) {
        tellCursor(view, [](QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); });
    }
}

void tellScreenReaders(PlanView& view)
{
    if (QAccessible::isActive()) {
        tellChanges(view,
                    [](QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); });
    }
}

} // namespace app
