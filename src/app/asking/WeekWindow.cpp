#include "app/asking/WeekWindow.h"

#include "answers/Words.h"
#include "app/DateField.h"
#include "app/ErrorReport.h"
#include "app/PlainTexts.h"
#include "app/PrinterChoice.h"
#include "app/PrinterOutput.h"
#include "app/asking/AnswerList.h"
#include "app/asking/AskingFields.h"
#include "app/asking/OverviewView.h"
#include "app/asking/ShownDay.h"
#include "app/asking/SubjectChoice.h"
#include "app/asking/WeekView.h"
#include "files/AnswerWeekPdf.h"
#include "paint/WeekLegend.h"
#include "print/Paper.h"
#include "runtime/RunTimeError.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <utility>

namespace app
{
namespace
{

constexpr QSize kWeekSize(1080, 700);
constexpr int kHoldingRole = Qt::UserRole;

} // namespace

WeekWindow::WeekWindow(AnswerDesk& desk, Ties ties, QWidget* parent)
    : AnswerWindow(desk, std::move(ties), QStringLiteral("Semaine"), parent)
{
    setObjectName(QStringLiteral("WeekWindow"));
    buildFields();
    m_legend = plainLabel();
    m_legend->setObjectName(QStringLiteral("WeekLegend"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(fieldRow());
    column->addWidget(buildPages(), 1);
    column->addWidget(m_legend);
    column->addWidget(statusLine());
    column->addLayout(buttonRow());
    const auto key = [this](QKeyCombination keys, auto act) {
        auto* shortcut = new QShortcut(QKeySequence(keys), this);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    key(Qt::ALT | Qt::Key_Left, [this] { moveWeek(-1); });
    key(Qt::ALT | Qt::Key_Right, [this] { moveWeek(1); });
    key(Qt::CTRL | Qt::Key_P, [this] { print(); });
    resize(kWeekSize);
}

void WeekWindow::buildFields()
{
    m_kind = new QComboBox;
    m_kind->setObjectName(QStringLiteral("WeekKind"));
    m_kind->setAccessibleName(QStringLiteral("Semaine de quoi"));
    m_kind->addItems(subjectKinds());
    m_name = new QComboBox;
    m_name->setObjectName(QStringLiteral("WeekName"));
    m_name->setAccessibleName(QStringLiteral("Nom"));
    m_name->setEditable(true);
    m_name->setInsertPolicy(QComboBox::NoInsert);
    m_name->setMinimumContentsLength(12);
    m_name->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_name->completer()->setFilterMode(Qt::MatchContains);
    m_week = weekList(QStringLiteral("WeekWeek"));
    m_isDated = new QCheckBox(QStringLiteral("Semaine d&u"));
    m_isDated->setObjectName(QStringLiteral("WeekByDate"));
    setPlainToolTip(m_isDated, QStringLiteral("Montrer la semaine d’une date, avec ses rattrapages "
                                              "et ses examens"));
    m_date = dateField(QStringLiteral("WeekDate"), QStringLiteral("Un jour de la semaine"));
    m_date->setEnabled(false);
    m_isList = new QCheckBox(QStringLiteral("En &liste"));
    m_isList->setObjectName(QStringLiteral("WeekAsList"));

    connect(m_kind, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    connect(m_name, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    connect(m_week, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    connect(m_isDated, &QCheckBox::toggled, this, [this](bool isDated) {
        m_date->setEnabled(isDated);
        m_week->setEnabled(!isDated);
        changed();
    });
    connect(m_date, &QDateEdit::dateChanged, this, [this] { changed(); });
    connect(m_isList, &QCheckBox::toggled, this, [this] { changed(); });
}

QLayout* WeekWindow::fieldRow()
{
    auto* row = new QHBoxLayout;
    addField(row, QStringLiteral("Semaine &de"), m_kind);
    addField(row, QStringLiteral("&Nom"), m_name);
    row->setStretchFactor(m_name, 1);
    const auto arrow = [&](const QString& text, const char* name, const QString& help, int step) {
        auto* button = new QPushButton(text);
        button->setObjectName(QString::fromLatin1(name));
        button->setAccessibleName(help);
        button->setToolTip(help);
        button->setMaximumWidth(30);
        connect(button, &QPushButton::clicked, this, [this, step] { flip(step); });
        row->addWidget(button);
    };
    arrow(QStringLiteral("◀"), "PreviousName", QStringLiteral("Précédent (flèche gauche)"), -1);
    arrow(QStringLiteral("▶"), "NextName", QStringLiteral("Suivant (flèche droite)"), 1);
    row->addSpacing(12);
    addField(row, QStringLiteral("&Semaine"), m_week);
    row->addWidget(m_isDated);
    row->addWidget(m_date);
    row->addStretch();
    row->addWidget(m_isList);
    return row;
}

QWidget* WeekWindow::buildPages()
{
    m_view = new WeekView;
    m_view->setAccessibleName(QStringLiteral("Semaine"));
    m_view->onFlip = [this](int step) { flip(step); };
    m_view->onOpen = [this](const answers::WeekBox& box) { open(box); };
    m_view->onCursor = [this](const QString& words) { tell(words); };
    m_overview = new OverviewView;
    m_overview->setAccessibleName(QStringLiteral("Toutes les salles de la semaine"));
    m_overview->onOpen = [this](const answers::WeekBox& box) { open(box); };
    m_overview->onOpenRoom = [this](const answers::RoomWeek& room) { presentFor(room.room); };
    m_overview->onCursor = [this](const QString& words) { tell(words); };
    m_list =
        new AnswerList(QStringLiteral("Séances de la semaine"),
                       {QStringLiteral("Jour"), QStringLiteral("Heure"), QStringLiteral("Salle"),
                        QStringLiteral("Classe"), QStringLiteral("Enseignant"),
                        QStringLiteral("Matière"), QStringLiteral("Semaine")});
    m_list->setObjectName(QStringLiteral("WeekList"));
    connect(m_list, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) {
        answers::WeekBox box;
        box.holdings = {timetable::HoldingId(item->data(0, kHoldingRole).toInt())};
        open(box);
    });
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_overview);
    m_pages->addWidget(m_list);
    return m_pages;
}

QLayout* WeekWindow::buttonRow()
{
    auto* row = new QHBoxLayout;
    const auto add = [&](const QString& text, const char* name, auto act) {
        auto* button = new QPushButton(text);
        button->setObjectName(QString::fromLatin1(name));
        connect(button, &QPushButton::clicked, this, act);
        row->addWidget(button);
    };
    add(QStringLiteral("&Toutes les salles"), "ShowAllRooms", [this] { presentFor(std::nullopt); });
    row->addStretch();
    add(QStringLiteral("&Imprimer…"), "PrintWeek", [this] { print(); });
    add(QStringLiteral("&Exporter…"), "ExportAnswer", [this] {
        if (m_document) {
            exportAnswer(files::AnswerKind::Week, *m_document);
        }
    });
    return row;
}

void WeekWindow::presentFor(const std::optional<answers::Subject>& subject)
{
    const shell::Inquiry* inquiry = desk().inquiry();
    presentKind(subject ? static_cast<int>(subject->index()) : kAllRoomsKind,
                subject && inquiry != nullptr ? answers::nameOf(inquiry->timetable(), *subject)
                                              : QString());
}

void WeekWindow::presentRoom(const QString& name)
{
    presentKind(kRoomKind, name);
}

void WeekWindow::presentKind(int kind, const QString& name)
{
    {
        const QScopedValueRollback<bool> filling(m_isFilling, true);
        m_kind->setCurrentIndex(kind);
        m_wanted = name;
        if (!isVisible() || m_wantedDay) { // the week that the plan shows, at first
            chooseShownWeek();
        }
    }
    present();
    m_pages->currentWidget()->setFocus();
}

void WeekWindow::presentRoomDay(const QString& name)
{
    m_wantedDay = shownDay(desk().shell().form());
    presentKind(kRoomKind, name);
}

void WeekWindow::chooseShownWeek()
{
    const form::PlanForm& form = desk().shell().form();
    m_week->setCurrentIndex(static_cast<int>(shownWeeks(form)));
    const QDate date = shownDate(form);
    m_isDated->setChecked(date.isValid());
    if (date.isValid()) {
        m_date->setDate(date);
    }
    if (m_wantedDay) { // a cursor stands in the drawn week alone
        m_isList->setChecked(false);
    }
}

void WeekWindow::goToWantedDay()
{
    const int day = *std::exchange(m_wantedDay, std::nullopt);
    if (!m_view->goToDay(day)) {
        tell(QStringLiteral("%1 : rien dans la %2")
                 .arg(m_view->grid().days.at(static_cast<std::size_t>(day)).title,
                      answers::titled(QStringLiteral("salle"), m_name->currentText())));
    }
}

bool WeekWindow::isOfAllRooms() const
{
    return m_kind->currentIndex() == kAllRoomsKind;
}

void WeekWindow::changed()
{
    if (!m_isFilling && isVisible()) {
        answer();
    }
}

void WeekWindow::offerNames(const shell::Inquiry& inquiry)
{
    m_name->setEnabled(!isOfAllRooms());
    if (isOfAllRooms()) {
        return;
    }
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    const QStringList names = subjectNames(inquiry.timetable(), m_kind->currentIndex());
    QStringList present;
    for (int index = 0; index < m_name->count(); ++index) {
        present << m_name->itemText(index);
    }
    const QString chosen = m_wanted.isEmpty() ? m_name->currentText() : m_wanted;
    m_wanted = QString();
    if (present != names) {
        m_name->clear();
        m_name->addItems(names);
    }
    m_name->setCurrentIndex(
        std::max(0, m_name->findText(chosen, Qt::MatchExactly | Qt::MatchCaseSensitive)));
}

std::optional<answers::Subject> WeekWindow::subject(const shell::Inquiry& inquiry) const
{
    return chosenSubject(inquiry.occupancy(), m_kind->currentIndex(), m_name->currentText());
}

answers::AskedWeek WeekWindow::week(const shell::Inquiry& inquiry) const
{
    if (!m_isDated->isChecked()) {
        return {static_cast<timetable::Week>(m_week->currentIndex()), {}};
    }
    return {inquiry.rhythm().weekOf(m_date->date()), m_date->date()};
}

void WeekWindow::showAnswer(const shell::Inquiry& inquiry)
{
    offerNames(inquiry);
    const auto about = isOfAllRooms() ? std::nullopt : subject(inquiry);
    const QString open = inquiry.whyOpen(m_isDated->isChecked());
    if (!open.isEmpty() || (!about && !isOfAllRooms())) {
        clearAnswer();
        tell(open.isEmpty() ? QStringLiteral("Il n’y a personne ni rien de ce nom.")
                            : open + QStringLiteral(" : rien n’est montré."),
             true);
        return;
    }
    m_document = inquiry.weekOf(about, week(inquiry));
    setWindowTitle(QStringLiteral("Semaine – ") + m_document->title);
    const auto& answer = std::get<files::WeekAnswer>(m_document->answer);
    QString sentence = m_document->about.value(0);
    if (m_isDated->isChecked() && !inquiry.rhythm().isKnown()) {
        sentence += QStringLiteral(", ") + rhythmWords(inquiry.rhythm(), m_date->date());
    }
    const QString outside = m_isDated->isChecked() ? inquiry.whyOutside(m_date->date()) : QString();
    tell(outside.isEmpty() ? sentence : outside, !outside.isEmpty());
    if (m_isList->isChecked()) {
        list(inquiry, answer);
    } else {
        draw(inquiry, answer);
    }
}

void WeekWindow::clearAnswer()
{
    m_document.reset();
    m_list->clear();
    m_view->show({}, {});
    m_overview->show({}, {});
}

void WeekWindow::draw(const shell::Inquiry& inquiry, const files::WeekAnswer& answer)
{
    if (isOfAllRooms()) {
        m_overview->show(answers::roomWeeks(inquiry.occupancy(), answer.week, answer.items),
                         m_document->roomColors);
        m_legend->setText(paint::weekLegend(m_overview->weeks()));
        m_pages->setCurrentWidget(m_overview);
    } else {
        m_view->show(
            answers::weekGrid(inquiry.occupancy(), answer.subject, answer.week, answer.items),
            m_document->roomColors);
        m_view->setAccessibleName(QStringLiteral("Semaine, ") + m_document->title);
        m_legend->setText(paint::weekLegend(m_view->grid()));
        m_pages->setCurrentWidget(m_view);
        if (m_wantedDay) {
            goToWantedDay();
        }
    }
}

void WeekWindow::list(const shell::Inquiry& inquiry, const files::WeekAnswer& answer)
{
    m_list->clear();
    for (const timetable::HoldingId id : answer.items) {
        const timetable::Holder holder =
            inquiry.occupancy().describe(inquiry.occupancy().holding(id));
        QStringList weeks{answers::kindWords(holder.kind)};
        if (holder.weeks != timetable::Week::Every) {
            weeks << answers::weekWords(holder.weeks);
        }
        weeks.removeAll(QString());
        auto* item =
            new QTreeWidgetItem(m_list, {answers::dayWords(holder.day, holder.date),
                                         holder.time ? answers::spanWords(*holder.time)
                                                     : QStringLiteral("heure inconnue"),
                                         holder.rooms.join(QStringLiteral(", ")), holder.className,
                                         holder.teachers.join(QStringLiteral(", ")), holder.subject,
                                         weeks.join(QStringLiteral(", "))});
        item->setData(0, kHoldingRole, id.index());
    }
    for (int column = 0; column < m_list->columnCount(); ++column) {
        m_list->resizeColumnToContents(column);
    }
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_legend->clear();
    m_pages->setCurrentWidget(m_list);
}

void WeekWindow::flip(int step)
{
    const int count = m_name->count();
    if (count > 0 && !isOfAllRooms()) {
        m_name->setCurrentIndex((m_name->currentIndex() + step + count) % count);
    }
}

void WeekWindow::moveWeek(int weeks)
{
    if (m_isDated->isChecked()) {
        m_date->setDate(m_date->date().addDays(weeks * timetable::kDaysOfWeek));
    }
}

void WeekWindow::open(const answers::WeekBox& box)
{
    const shell::Inquiry* inquiry = desk().inquiry();
    if (inquiry == nullptr || box.holdings.empty()) {
        return;
    }
    shell::Destination destination =
        shell::Destination::of(inquiry->occupancy(), box.holdings.front());
    if (m_isDated->isChecked() && !destination.date.isValid()) {
        const QDate monday =
            m_date->date().addDays(timetable::kMonday - timetable::dayOf(m_date->date()));
        destination.date = monday.addDays(destination.day);
    }
    hide(); // the plan is to be seen
    ties().go(destination);
}

void WeekWindow::print()
{
    if (!m_document) {
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setCreator(QStringLiteral("Tempora"));
    printer.setDocName(QString(m_document->title).replace(u'/', u'-'));
    static_cast<void>(print::layPaper(printer)); // whatever it says, the user may choose another
    if (!choosePrinter(this, printer, QStringLiteral("Imprimer la semaine"), 1)) {
        return;
    }
    try {
        static_cast<void>(print::layPaper(printer));
        printOn(printer, [this](QPrinter& target) {
            print::printWeek(target, files::weekSheetsOf(*m_document));
        });
        if (printer.outputFileName().isEmpty()) {
            tell(QStringLiteral("Imprimé : %1").arg(m_document->title));
        } else {
            tellSaved(printer.outputFileName());
        }
    } catch (const runtime::RunTimeError& error) {
        showFault(this, QStringLiteral("La semaine n’a pas pu être imprimée."),
                  error.activity().isEmpty() ? error.text() : error.activity());
    }
}

} // namespace app
