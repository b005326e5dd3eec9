#include "app/asking/FreeRoomsWindow.h"

#include "answers/HolderWords.h"
#include "answers/Words.h"
#include "app/DateField.h"
#include "app/PlainTexts.h"
#include "app/WindowStyle.h"
#include "app/asking/AnswerList.h"
#include "app/asking/AskingFields.h"
#include "app/asking/AskingLine.h"
#include "app/asking/RoomChoice.h"
#include "runtime/FrenchDate.h"
#include "timetable/ReadTimes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace app
{
namespace
{

using timetable::MinuteOfDay;
using timetable::Week;

constexpr QSize kFreeRoomsSize(760, 560);
constexpr int kMostPlaces = 99999;
constexpr int kMostWeeks = 60;
constexpr int kRoomWidth = 190;
constexpr int kColumnGap = 16; ///< between a time and the next column's text
// Data of an item.
constexpr int kRoomRole = Qt::UserRole;

QComboBox* timeList(const QString& name, const QString& accessibleName)
{
    auto* list = new QComboBox;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMinimumContentsLength(6);
    return list;
}

} // namespace

FreeRoomsWindow::FreeRoomsWindow(AnswerDesk& desk, Ties ties, QWidget* parent)
    : AnswerWindow(desk, std::move(ties), QStringLiteral("Salle libre"), parent)
{
    setObjectName(QStringLiteral("FreeRoomsWindow"));
    buildFields();
    buildList();
    auto* column = new QVBoxLayout(this);
    auto* words = new QHBoxLayout;
    addField(words, QStringLiteral("En quelques &mots"), m_line);
    column->addLayout(words);
    column->addLayout(fieldRows());
    column->addWidget(m_list, 1);
    column->addWidget(statusLine());
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_showsTaken);
    buttons->addStretch();
    auto* go = new QPushButton(QStringLiteral("&Voir sur le plan"));
    go->setObjectName(QStringLiteral("GoToRoom"));
    go->setAutoDefault(false);
    buttons->addWidget(go);
    auto* write = new QPushButton(QStringLiteral("&Exporter…"));
    write->setObjectName(QStringLiteral("ExportAnswer"));
    buttons->addWidget(write);
    column->addLayout(buttons);
    connect(go, &QPushButton::clicked, this, [this] { goToChosen(); });
    connect(write, &QPushButton::clicked, this, [this] {
        if (m_document) {
            exportAnswer(files::AnswerKind::FreeRooms, *m_document);
        }
    });
    resize(kFreeRoomsSize);
}

void FreeRoomsWindow::buildFields()
{
    m_line = new AskingLine;
    m_line->setObjectName(QStringLiteral("QuickQuestion"));
    m_line->setAccessibleName(QStringLiteral("Salle cherchée, en quelques mots"));
    setHint(m_line, QStringLiteral("mardi 9h30 40 places   ou   24/11 14h-16h zone 2"));
    m_line->setClearButtonEnabled(true);
    m_day = new QComboBox;
    m_day->setObjectName(QStringLiteral("AskedDay"));
    m_day->setAccessibleName(QStringLiteral("Jour"));
    for (const QString& name : runtime::frenchDayNames()) {
        m_day->addItem(name);
    }
    m_isDated = new QCheckBox(QStringLiteral("&Le"));
    m_isDated->setObjectName(QStringLiteral("AskedByDate"));
    setPlainToolTip(m_isDated, QStringLiteral("Demander une date : ses rattrapages et ses examens "
                                              "comptent"));
    m_date = dateField(QStringLiteral("AskedDate"), QStringLiteral("Date"));
    m_date->setEnabled(false);
    m_from = timeList(QStringLiteral("AskedFrom"), QStringLiteral("De"));
    m_to = timeList(QStringLiteral("AskedTo"), QStringLiteral("À"));
    m_places = new QSpinBox;
    m_places->setObjectName(QStringLiteral("AskedPlaces"));
    m_places->setAccessibleName(QStringLiteral("Places au moins"));
    m_places->setRange(0, kMostPlaces);
    m_week = weekList(QStringLiteral("AskedWeek"));
    m_weeksRunning = new QSpinBox;
    m_weeksRunning->setObjectName(QStringLiteral("AskedWeeksRunning"));
    m_weeksRunning->setAccessibleName(QStringLiteral("Semaines de suite"));
    m_weeksRunning->setRange(1, kMostWeeks);
    m_weeksRunning->setEnabled(false);
    m_rooms = new RoomChoice([this] { changed(); });

    connect(m_line, &QLineEdit::textChanged, this, [this] { readLine(); });
    connect(m_line, &QLineEdit::returnPressed, this, [this] { goToChosen(); });
    m_line->onDown = [this] { m_list->setFocus(); };
    connect(m_day, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    connect(m_isDated, &QCheckBox::toggled, this, [this](bool isDated) {
        m_date->setEnabled(isDated);
        m_day->setEnabled(!isDated);
        m_weeksRunning->setEnabled(isDated);
        changed();
    });
    connect(m_date, &QDateEdit::dateChanged, this, [this] { changed(); });
    for (QComboBox* list : {m_from, m_to}) {
        connect(list, &QComboBox::currentTextChanged, this, [this] { changed(); });
    }
    connect(m_places, &QSpinBox::valueChanged, this, [this] { changed(); });
    connect(m_week, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    connect(m_weeksRunning, &QSpinBox::valueChanged, this, [this] { changed(); });
}

QLayout* FreeRoomsWindow::fieldRows()
{
    auto* rows = new QVBoxLayout;
    auto* when = new QHBoxLayout;
    addField(when, QStringLiteral("&Jour"), m_day);
    when->addWidget(m_isDated);
    when->addWidget(m_date);
    addField(when, QStringLiteral("&De"), m_from);
    addField(when, QStringLiteral("&à"), m_to);
    addField(when, QStringLiteral("Pla&ces"), m_places);
    when->addStretch();
    auto* which = new QHBoxLayout;
    addField(which, QStringLiteral("&Semaine"), m_week);
    addField(which, QStringLiteral("Semaines de s&uite"), m_weeksRunning);
    which->addWidget(m_rooms);
    which->addStretch();
    rows->addLayout(when);
    rows->addLayout(which);
    return rows;
}

void FreeRoomsWindow::buildList()
{
    m_list =
        new AnswerList(QStringLiteral("Salles libres"),
                       {QStringLiteral("Salle"), QStringLiteral("Places"), QStringLiteral("Libre"),
                        QStringLiteral("Zone"), QStringLiteral("Département")});
    m_list->setObjectName(QStringLiteral("FreeRooms"));
    m_list->header()->resizeSection(0, kRoomWidth);
    m_showsTaken = new QCheckBox(QStringLiteral("Montrer aussi les salles p&rises"));
    m_showsTaken->setObjectName(QStringLiteral("ShowTaken"));
    connect(m_showsTaken, &QCheckBox::toggled, this, [this] { changed(); });
    connect(m_list, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item) { go(item); });
}

void FreeRoomsWindow::presentFor(const Prefill& prefill)
{
    Fields fields;
    fields.day = prefill.day;
    fields.isDated = prefill.date.isValid();
    fields.date = fields.isDated ? prefill.date : QDate::currentDate();
    fields.from = prefill.span ? answers::clockWords(prefill.span->start) : m_from->currentText();
    fields.to = prefill.span ? answers::clockWords(prefill.span->end()) : m_to->currentText();
    fields.week = static_cast<int>(prefill.week);
    {
        const QScopedValueRollback<bool> filling(m_isFilling, true);
        m_line->clear();
        m_weeksRunning->setValue(1);
    }
    m_isZoneUnknown = false;
    fillIn(fields);
    m_ownFields = fields;
    present();
    m_ownFields = this->fields(); // with the times that were offered
    m_line->setFocus();
}

FreeRoomsWindow::Fields FreeRoomsWindow::fields() const
{
    return {m_day->currentIndex(),  m_isDated->isChecked(),
            m_date->date(),         m_from->currentText(),
            m_to->currentText(),    m_places->value(),
            m_week->currentIndex(), m_rooms->filter().zone.value_or(0)};
}

void FreeRoomsWindow::fillIn(const Fields& fields)
{
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    m_day->setCurrentIndex(fields.day);
    m_isDated->setChecked(fields.isDated);
    m_date->setDate(fields.date);
    m_from->setEditText(fields.from);
    m_to->setEditText(fields.to);
    m_places->setValue(fields.places);
    m_week->setCurrentIndex(fields.week);
    m_isZoneUnknown = !m_rooms->chooseZone(fields.zone);
}

void FreeRoomsWindow::changed()
{
    if (!m_isFilling && isVisible()) {
        m_ownFields = fields();
        answer();
    }
}

/// An hour begins as a number: what the line said of places before it went on is taken back.
void FreeRoomsWindow::readLine()
{
    if (m_isFilling) {
        return;
    }
    const answers::QuickQuestion asked =
        answers::quickQuestion(m_line->text(), QDate::currentDate());
    Fields said = m_ownFields;
    if (asked.day) {
        said.isDated = false;
        said.day = *asked.day;
    }
    if (asked.date.isValid()) {
        said.isDated = true;
        said.date = asked.date;
    }
    if (asked.from) {
        said.from = answers::clockWords(*asked.from);
        said.to = asked.to ? answers::clockWords(*asked.to) : QString();
    }
    said.places = asked.places.value_or(said.places);
    said.zone = asked.zone.value_or(said.zone);
    if (asked.week) {
        said.week = static_cast<int>(*asked.week);
    }
    fillIn(said);
    if (isVisible()) {
        answer();
    }
}

/// The slots' own times, for whoever would rather choose than type.
void FreeRoomsWindow::offerTimes(const timetable::Timetable& timetable)
{
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    const int day =
        m_isDated->isChecked() ? timetable::dayOf(m_date->date()) : m_day->currentIndex();
    QStringList starts;
    QStringList ends;
    for (const timetable::DaySlot& slot : timetable.slotsOf(day)) {
        if (const auto time = timetable::timeOf(slot)) {
            starts << answers::clockWords(time->start);
            ends << answers::clockWords(time->end());
        }
    }
    for (const auto& [list, times] : {std::pair(m_from, starts), std::pair(m_to, ends)}) {
        QStringList present;
        for (int index = 0; index < list->count(); ++index) {
            present << list->itemText(index);
        }
        if (present != times) {
            const QString text = list->currentText();
            list->clear();
            list->addItems(times);
            list->setEditText(text.isEmpty() ? times.value(0) : text);
        }
    }
    if (m_from->currentText().isEmpty()) {
        m_from->setEditText(starts.value(0));
    }
    const auto from = timetable::readTime(m_from->currentText());
    if (from && m_to->currentText().isEmpty()) {
        // Only the start was told: to the end of the slot that it lies in, or a usual course long.
        MinuteOfDay end = *from + timetable::kUsualLength;
        for (const timetable::DaySlot& slot : timetable.slotsOf(day)) {
            const auto time = timetable::timeOf(slot);
            if (time && time->start <= *from && *from < time->end()) {
                end = time->end();
            }
        }
        m_to->setEditText(answers::clockWords(end));
    }
}

std::vector<timetable::When> FreeRoomsWindow::days(const shell::Inquiry& inquiry) const
{
    if (!m_isDated->isChecked()) {
        return {timetable::When::weekday(m_day->currentIndex(),
                                         static_cast<Week>(m_week->currentIndex()))};
    }
    return inquiry.sameDays(m_date->date(), m_weeksRunning->value());
}

QString FreeRoomsWindow::unreadWords() const
{
    return answers::quickQuestion(m_line->text(), QDate::currentDate()).unread;
}

std::optional<answers::FreeRoomsQuestion> FreeRoomsWindow::question(const shell::Inquiry& inquiry,
                                                                    QString& why) const
{
    const auto from = timetable::readTime(m_from->currentText());
    const auto to = timetable::readTime(m_to->currentText());
    if (!from || !to) {
        why = QStringLiteral("« %1 » n’est pas une heure : écrivez par exemple 9h30.")
                  .arg(from ? m_to->currentText() : m_from->currentText());
        return std::nullopt;
    }
    if (*to <= *from) {
        why = QStringLiteral("La fin, %1, n’est pas après le début, %2.")
                  .arg(answers::clockWords(*to), answers::clockWords(*from));
        return std::nullopt;
    }
    const QString unread = unreadWords();
    if (std::any_of(unread.begin(), unread.end(), [](QChar sign) { return sign.isDigit(); })) {
        why =
            QStringLiteral("« %1 » n’est ni une heure, ni une date, ni un nombre de places : rien "
                           "n’est dit libre.")
                .arg(unread);
        return std::nullopt;
    }
    if (m_isZoneUnknown) {
        why = QStringLiteral("Aucune salle n’est de la zone que vous avez écrite.");
        return std::nullopt;
    }
    const answers::RoomFilter filter = m_rooms->filter();
    const QString noRoom = inquiry.whyNoRoom(filter);
    why = noRoom.isEmpty() ? inquiry.whyOpen(m_isDated->isChecked()) : noRoom;
    if (!why.isEmpty()) {
        why[0] = why.front().toUpper();
        why += noRoom.isEmpty() ? QStringLiteral(" : rien n’est dit libre.") : QStringLiteral(".");
        return std::nullopt;
    }
    return answers::FreeRoomsQuestion{days(inquiry), timetable::between(*from, *to),
                                      m_places->value(), filter};
}

void FreeRoomsWindow::showAnswer(const shell::Inquiry& inquiry)
{
    {
        const QScopedValueRollback<bool> filling(m_isFilling, true);
        m_rooms->offer(inquiry.timetable());
    }
    offerTimes(inquiry.timetable());
    m_week->setEnabled(!m_isDated->isChecked());
    QString why;
    const auto asked = question(inquiry, why);
    if (!asked) {
        clearAnswer();
        tell(why, true);
        return;
    }
    m_document = inquiry.freeRooms(*asked);
    list(inquiry, std::get<answers::FreeRooms>(m_document->answer));
}

void FreeRoomsWindow::clearAnswer()
{
    m_list->clear();
    m_document.reset();
}

void FreeRoomsWindow::list(const shell::Inquiry& inquiry, const answers::FreeRooms& answer)
{
    const timetable::Timetable& timetable = inquiry.timetable();
    m_list->clear();
    const auto add = [&](timetable::RoomId id, const QString& words) {
        const timetable::Room& room = timetable.room(id);
        auto* item =
            new QTreeWidgetItem(m_list, {room.name, QString::number(room.places), words,
                                         room.zone ? QString::number(*room.zone) : QString(),
                                         room.department.value_or(QString())});
        item->setData(0, kRoomRole, room.name);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(2, plainToolTip(words));
        return item;
    };
    for (const answers::FreeRoom& free : answer.rooms) {
        add(free.room, answers::spanWords(free.stretch));
    }
    if (m_showsTaken->isChecked()) {
        for (const answers::HeldRoom& held : answer.taken) {
            add(held.room,
                QStringLiteral("prise : ") + answers::holdersWords(inquiry.occupancy(), held.by))
                ->setForeground(2, hintInk());
        }
    }
    for (const answers::HeldRoom& held : answer.unknown) { // never left out: it may be free
        add(held.room,
            QStringLiteral("? inconnu : ") + answers::whyUnknown(inquiry.occupancy(), held.by));
    }
    m_list->resizeColumnToContents(2);
    m_list->header()->resizeSection(2, m_list->header()->sectionSize(2) + kColumnGap);
    if (!answer.rooms.empty()) {
        m_list->setCurrentItem(m_list->topLevelItem(0));
    }
    const auto count = answer.rooms.size();
    QString sentence = count == 0   ? QStringLiteral("Aucune salle libre")
                       : count == 1 ? QStringLiteral("1 salle libre")
                                    : QStringLiteral("%1 salles libres").arg(count);
    sentence += answer.taken.size() == 1 ? QStringLiteral(", 1 prise")
                                         : QStringLiteral(", %1 prises").arg(answer.taken.size());
    if (!answer.unknown.empty()) {
        sentence += QStringLiteral(", %1 dont on ne sait rien").arg(answer.unknown.size());
    }
    if (m_isDated->isChecked()) {
        sentence += QStringLiteral("  ·  ") + rhythmWords(inquiry.rhythm(), m_date->date());
    }
    const QString unread = unreadWords();
    if (!unread.isEmpty()) {
        sentence += QStringLiteral("  ·  pas compris : « %1 »").arg(unread);
    }
    const QString outside = m_isDated->isChecked()
                                ? inquiry.whyOutside(m_date->date(), m_weeksRunning->value())
                                : QString();
    if (!outside.isEmpty()) {
        sentence = outside + QStringLiteral(" ") + sentence;
    }
    tell(sentence, count == 0 || !unread.isEmpty() || !outside.isEmpty());
}

void FreeRoomsWindow::goToChosen()
{
    go(m_list->currentItem());
}

void FreeRoomsWindow::go(const QTreeWidgetItem* item)
{
    if (item == nullptr) {
        return;
    }
    shell::Destination destination;
    destination.room = item->data(0, kRoomRole).toString();
    if (m_isDated->isChecked()) {
        destination.date = m_date->date();
    } else {
        destination.day = m_day->currentIndex();
        destination.weeks = static_cast<Week>(m_week->currentIndex());
    }
    hide(); // the plan is to be seen; the fields stay as they are
    ties().go(destination);
}

} // namespace app
