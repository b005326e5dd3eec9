#include "app/asking/RoomUseWindow.h"

#include "answers/Words.h"
#include "app/PlainTexts.h"
#include "app/asking/AnswerList.h"
#include "app/asking/AskingFields.h"
#include "app/asking/RoomChoice.h"
#include "app/asking/ShareBar.h"
#include "files/ShareShade.h"
#include "paint/CellBox.h"
#include "paint/Inks.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace app
{
namespace
{

constexpr QSize kRoomUseSize(900, 690);
constexpr int kGridHeight = 250; ///< unless its rows need more
constexpr int kRowSpace = 4;     ///< pixels of a row besides its text
constexpr int kBarWidth = 170;

/// Sorted by what its cell means: numbers and shares by their size.
class UseItem : public QTreeWidgetItem
{
public:
    using QTreeWidgetItem::QTreeWidgetItem;

    bool operator<(const QTreeWidgetItem& other) const override
    {
        const int column = treeWidget()->sortColumn();
        const QVariant mine = data(column, kShareRole);
        return mine.isValid() ? mine.toDouble() < other.data(column, kShareRole).toDouble()
                              : text(column).localeAwareCompare(other.text(column)) < 0;
    }
};

bool isShade(const files::TableColumn& column)
{
    return column.look == files::ColumnLook::Shade;
}

} // namespace

RoomUseWindow::RoomUseWindow(AnswerDesk& desk, Ties ties, QWidget* parent)
    : AnswerWindow(desk, std::move(ties), QStringLiteral("Occupation des salles"), parent),
      m_week(weekList(QStringLiteral("UseWeek"))), m_rooms(new RoomChoice([this] { changed(); })),
      m_slots(new QTableWidget), m_lists(new QTabWidget), m_notes(plainLabel())
{
    setObjectName(QStringLiteral("RoomUseWindow"));
    m_slots->setObjectName(QStringLiteral("UseBySlot"));
    m_slots->setAccessibleName(QStringLiteral("Occupation par jour et par créneau"));
    m_slots->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_slots->verticalHeader()->setMinimumSectionSize(m_slots->fontMetrics().height() + kRowSpace);
    m_lists->setObjectName(QStringLiteral("UseLists"));
    m_notes->setWordWrap(true);
    m_notes->setObjectName(QStringLiteral("UseNotes"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(fieldRow());
    column->addWidget(m_slots);
    column->addWidget(m_lists, 1);
    column->addWidget(m_notes);
    column->addWidget(statusLine());
    column->addLayout(buttonRow());
    connect(m_week, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    resize(kRoomUseSize);
}

QLayout* RoomUseWindow::fieldRow()
{
    auto* row = new QHBoxLayout;
    addField(row, QStringLiteral("&Semaine"), m_week);
    row->addWidget(m_rooms);
    row->addStretch();
    return row;
}

QLayout* RoomUseWindow::buttonRow()
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* write = new QPushButton(QStringLiteral("&Exporter…"));
    write->setObjectName(QStringLiteral("ExportAnswer"));
    connect(write, &QPushButton::clicked, this, [this] {
        if (m_document) {
            exportAnswer(files::AnswerKind::RoomUse, *m_document);
        }
    });
    row->addWidget(write);
    return row;
}

void RoomUseWindow::changed()
{
    if (!m_isFilling && isVisible()) {
        answer();
    }
}

void RoomUseWindow::showAnswer(const shell::Inquiry& inquiry)
{
    {
        const QScopedValueRollback<bool> filling(m_isFilling, true);
        m_rooms->offer(inquiry.timetable());
    }
    const answers::RoomFilter filter = m_rooms->filter();
    QString why = inquiry.whyNoRoom(filter);
    if (!why.isEmpty()) {
        clearAnswer();
        why[0] = why.front().toUpper();
        tell(why + u'.', true);
        return;
    }
    const int shown = m_lists->currentIndex();
    clearAnswer();
    m_document = inquiry.roomUse(static_cast<timetable::Week>(m_week->currentIndex()), filter);
    const files::AnswerTable table = files::answerTable(*m_document, files::TableUse::Page);
    for (auto section = table.sections.rbegin(); section != table.sections.rend(); ++section) {
        if (std::any_of(section->columns.begin(), section->columns.end(), isShade)) {
            showGrid(*section);
        } else {
            addList(*section);
        }
    }
    m_lists->setCurrentIndex(std::max(shown, 0));
    m_notes->setText(table.notes.join(u' '));
    const auto& use = std::get<answers::RoomUse>(m_document->answer);
    QString sentence = answers::percentWords(use.share) + QStringLiteral(" des créneaux tenus, ");
    sentence += use.areSeatsKnown
                    ? answers::percentWords(use.seatsShare) + QStringLiteral(" des sièges pris")
                    : QStringLiteral("sièges inconnus");
    tell(sentence, !use.areSeatsKnown);
}

void RoomUseWindow::clearAnswer()
{
    m_slots->clear();
    m_slots->setRowCount(0);
    m_slots->setColumnCount(0);
    while (m_lists->count() > 0) {
        const std::unique_ptr<QWidget> list(m_lists->widget(0));
        m_lists->removeTab(0);
    }
    m_notes->clear();
    m_document.reset();
}

void RoomUseWindow::showGrid(const files::TableSection& section)
{
    m_slots->setRowCount(static_cast<int>(section.rows.size()));
    m_slots->setColumnCount(static_cast<int>(section.columns.size()) - 1);
    for (std::size_t column = 1; column < section.columns.size(); ++column) {
        m_slots->setHorizontalHeaderItem(static_cast<int>(column) - 1,
                                         new QTableWidgetItem(section.columns[column].title));
    }
    for (std::size_t row = 0; row < section.rows.size(); ++row) {
        const files::TableRow& cells = section.rows[row];
        m_slots->setVerticalHeaderItem(static_cast<int>(row),
                                       new QTableWidgetItem(cells.front().text));
        for (std::size_t column = 1; column < cells.size(); ++column) {
            auto* item = new QTableWidgetItem(cells[column].text);
            item->setTextAlignment(Qt::AlignCenter);
            if (cells[column].share) {
                const form::Colour ground = files::shadeOf(*cells[column].share);
                item->setBackground(paint::toColor(ground));
                item->setForeground(paint::toColor(paint::readableOn(ground)));
            }
            m_slots->setItem(static_cast<int>(row), static_cast<int>(column) - 1, item);
        }
    }
    m_slots->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_slots->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    // The last row is the mean of all others: it must not lie below the edge.
    const int rows = m_slots->rowCount() * m_slots->verticalHeader()->minimumSectionSize();
    const int need =
        m_slots->horizontalHeader()->sizeHint().height() + rows + 2 * m_slots->frameWidth();
    m_slots->setMinimumHeight(need);
    m_slots->setMaximumHeight(std::max(need, kGridHeight));
}

void RoomUseWindow::addList(const files::TableSection& section)
{
    QStringList titles;
    for (const files::TableColumn& column : section.columns) {
        titles << column.title;
    }
    QTreeWidget* list = new AnswerList(section.heading, titles);
    list->setObjectName(QStringLiteral("Use_") + section.label);
    for (const files::TableRow& row : section.rows) {
        auto* item = new UseItem(list);
        for (std::size_t index = 0; index < row.size(); ++index) {
            const auto column = static_cast<int>(index);
            const files::ColumnLook look = section.columns[index].look;
            item->setText(column, row[index].text);
            if (look == files::ColumnLook::Bar) {
                item->setData(column, kShareRole, row[index].share.value_or(-1));
            } else if (look == files::ColumnLook::Number) {
                item->setData(column, kShareRole,
                              QLocale(QLocale::French).toDouble(row[index].text));
                item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
            }
        }
    }
    for (std::size_t index = 0; index < section.columns.size(); ++index) {
        const auto column = static_cast<int>(index);
        if (section.columns[index].look == files::ColumnLook::Bar) {
            list->setItemDelegateForColumn(column, new ShareBar(list));
            list->setColumnWidth(column, kBarWidth);
        } else {
            list->resizeColumnToContents(column);
        }
    }
    list->sortByColumn(0, Qt::AscendingOrder);
    list->setSortingEnabled(true);
    m_lists->addTab(list, section.heading);
}

} // namespace app
