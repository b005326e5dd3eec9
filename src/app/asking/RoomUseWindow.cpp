#include "app/asking/RoomUseWindow.h"

#include "answers/Words.h"
#include "app/PlainTexts.h"
#include "app/asking/RoomChoice.h"
#include "app/asking/ShareBar.h"
#include "app/asking/ShownDay.h"
#include "runtime/FrenchDate.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <cmath>
#include <set>

namespace app
{
namespace
{

constexpr QSize kSize(900, 640);

/// Sorted by its number, not its text.
class RoomItem : public QTreeWidgetItem
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

/// The darker, the more is held; texts stay readable on every shade.
QColor shade(double share)
{
    constexpr QColor none(255, 255, 255);
    constexpr QColor all(31, 58, 95);
    const auto between = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {between(none.red(), all.red()), between(none.green(), all.green()),
            between(none.blue(), all.blue())};
}

} // namespace

RoomUseWindow::RoomUseWindow(AnswerDesk& desk, Ties ties, QWidget* parent)
    : AnswerWindow(desk, std::move(ties), QStringLiteral("Occupation des salles"), parent),
      m_week(new QComboBox), m_rooms(new RoomChoice([this] {
          if (!m_isFilling && isVisible()) {
              answer();
          }
      })),
      m_slots(new QTableWidget),
      m_list(answerList(QStringLiteral("Occupation par salle"),
                        {QStringLiteral("Salle"), QStringLiteral("Places"),
                         QStringLiteral("Séances tenues"), QStringLiteral("Occupation"),
                         QStringLiteral("Sièges pris")}))
{
    setObjectName(QStringLiteral("RoomUseWindow"));
    m_week->setObjectName(QStringLiteral("UseWeek"));
    m_week->setAccessibleName(QStringLiteral("Semaine"));
    m_week->addItems({QStringLiteral("Toute semaine"), QStringLiteral("Semaine A"),
                      QStringLiteral("Semaine B")});
    m_slots->setObjectName(QStringLiteral("UseBySlot"));
    m_slots->setAccessibleName(QStringLiteral("Occupation par jour et par séance"));
    m_slots->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_slots->setMaximumHeight(215);
    m_list->setObjectName(QStringLiteral("UseByRoom"));
    m_list->setSortingEnabled(true);
    m_list->sortByColumn(0, Qt::AscendingOrder);
    m_list->header()->resizeSection(0, 200);
    m_list->header()->resizeSection(2, 120);
    m_list->header()->resizeSection(3, 200);
    for (const int column : {3, 4}) {
        m_list->setItemDelegateForColumn(column, new ShareBar(m_list));
    }
    auto* notes = plainLabel(
        QStringLiteral("Une séance tient les créneaux dont elle touche une minute ; les cours de "
                       "la période comptent, sans rattrapages ni examens. Occupation : créneaux "
                       "tenus sur les créneaux des six jours. Sièges pris : étudiants inscrits "
                       "dans les classes présentes, au plus les places, sur les places de tous "
                       "les créneaux. « Toute semaine » est la moyenne des semaines A et B."));
    notes->setWordWrap(true);
    notes->setObjectName(QStringLiteral("UseNotes"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(fieldRow());
    column->addWidget(m_slots);
    column->addWidget(m_list, 1);
    column->addWidget(notes);
    column->addWidget(statusLine());
    column->addLayout(buttonRow());
    connect(m_week, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_isFilling && isVisible()) {
            answer();
        }
    });
    resize(kSize);
}

QLayout* RoomUseWindow::fieldRow()
{
    auto* row = new QHBoxLayout;
    auto* caption = new QLabel(QStringLiteral("&Semaine")); // a caption of our own, with its key
    caption->setBuddy(m_week);
    row->addWidget(caption);
    row->addWidget(m_week);
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
    m_document = inquiry.roomUse(static_cast<timetable::Week>(m_week->currentIndex()), filter);
    const auto& use = std::get<answers::RoomUse>(m_document->answer);
    showSlots(use);
    showRooms(inquiry, use);
    QString sentence =
        QStringLiteral("%1 des créneaux tenus").arg(answers::percentWords(use.share));
    sentence +=
        use.areSeatsKnown
            ? QStringLiteral(", %1 des sièges pris").arg(answers::percentWords(use.seatsShare))
            : QStringLiteral(", sièges inconnus : les étudiants ne se laissent pas lire");
    tell(sentence, !use.areSeatsKnown);
}

void RoomUseWindow::clearAnswer()
{
    m_slots->clear();
    m_slots->setRowCount(0);
    m_slots->setColumnCount(0);
    m_list->clear();
    m_document.reset();
}

void RoomUseWindow::showSlots(const answers::RoomUse& use)
{
    std::set<int> numbers;
    for (const answers::UseOfSlot& slot : use.slots) {
        numbers.insert(slot.slot);
    }
    QStringList columns;
    for (const int number : numbers) {
        columns << QStringLiteral("Séance %1").arg(number);
    }
    QStringList days;
    for (const QString& name : runtime::frenchDayNames()) {
        days << name;
    }
    m_slots->clear();
    m_slots->setRowCount(static_cast<int>(days.size()));
    m_slots->setColumnCount(static_cast<int>(columns.size()));
    m_slots->setVerticalHeaderLabels(days);
    m_slots->setHorizontalHeaderLabels(columns);
    m_slots->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_slots->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (const answers::UseOfSlot& slot : use.slots) {
        auto* cell = new QTableWidgetItem(answers::percentWords(slot.share));
        cell->setTextAlignment(Qt::AlignCenter);
        cell->setBackground(shade(slot.share));
        cell->setForeground(slot.share > 0.45 ? Qt::white : Qt::black);
        cell->setToolTip(plainToolTip(QStringLiteral("%1 salles sur %2")
                                          .arg(answers::numberWords(slot.held))
                                          .arg(slot.rooms)));
        m_slots->setItem(slot.day,
                         static_cast<int>(std::distance(numbers.begin(), numbers.find(slot.slot))),
                         cell);
    }
}

void RoomUseWindow::showRooms(const shell::Inquiry& inquiry, const answers::RoomUse& use)
{
    m_list->setSortingEnabled(false); // else each row is sorted in by itself
    m_list->clear();
    for (const answers::UseOfRoom& room : use.rooms) {
        const QString held =
            QStringLiteral("%1 sur %2").arg(answers::numberWords(room.held)).arg(room.slots);
        const QString seats = !use.areSeatsKnown ? QStringLiteral("inconnu")
                              : room.places == 0 ? QStringLiteral("–")
                                                 : answers::percentWords(room.seatsShare);
        auto* item = new RoomItem(m_list, QStringList{inquiry.timetable().room(room.room).name,
                                                      QString::number(room.places), held,
                                                      answers::percentWords(room.share), seats});
        item->setData(1, kShareRole, static_cast<double>(room.places));
        item->setData(2, kShareRole, room.held);
        item->setData(3, kShareRole, room.share);
        item->setData(4, kShareRole, use.areSeatsKnown ? room.seatsShare : 0.0);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    m_list->setSortingEnabled(true);
}

} // namespace app
