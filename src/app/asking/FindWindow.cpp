#include "app/asking/FindWindow.h"

#include "answers/SearchText.h"
#include "answers/WeekBox.h"
#include "answers/Words.h"
#include "app/PlainTexts.h"
#include "app/WindowStyle.h"
#include "app/asking/AnswerList.h"
#include "app/asking/AskingFields.h"
#include "app/asking/AskingLine.h"
#include "app/asking/ShownDay.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace app
{
namespace
{

constexpr QSize kFindSize(820, 460);
constexpr int kLeastLetters = 3;
// A list that nobody reads to its end need not be made.
constexpr std::size_t kMostRows = 400;
// Data of an item: the holding's id, -1 without one; and the place of its hit among all.
constexpr int kFirstHoldingRole = Qt::UserRole;
constexpr int kHitRole = Qt::UserRole + 1;

/// Classes, subject and teachers, as far as the name that was found does not say it.
QString what(const timetable::Holder& holder, const QStringList& classes, const QString& name)
{
    QStringList words{answers::kindWords(holder.kind)};
    words << classes << holder.subject << holder.teachers;
    words.removeAll(QString());
    words.removeAll(name);
    return words.join(QStringLiteral(", "));
}

QString when(const timetable::Holder& holder)
{
    QString words = answers::dayWords(holder.day, holder.date);
    words +=
        holder.time ? u' ' + answers::spanWords(*holder.time) : QStringLiteral(", heure inconnue");
    return holder.weeks == timetable::Week::Every
               ? words
               : words + QStringLiteral(", ") + answers::weekWords(holder.weeks);
}

QTreeWidgetItem* heading(QTreeWidget* list, const QString& text)
{
    auto* item = new QTreeWidgetItem(list, {text});
    item->setFirstColumnSpanned(true);
    item->setFlags(Qt::ItemIsEnabled); // not to be chosen
    QFont font = item->font(0);
    font.setBold(true);
    item->setFont(0, font);
    item->setExpanded(true);
    return item;
}

} // namespace

FindWindow::FindWindow(AnswerDesk& desk, Ties ties, QWidget* parent)
    : AnswerWindow(desk, std::move(ties), QStringLiteral("Chercher"), parent),
      m_text(new AskingLine),
      m_list(new AnswerList(QStringLiteral("Résultats"),
                            {QStringLiteral("Nom"), QStringLiteral("Quand"),
                             QStringLiteral("Salle"), QStringLiteral("Séance")}))
{
    setObjectName(QStringLiteral("FindWindow"));
    m_text->setObjectName(QStringLiteral("SearchText"));
    m_text->setAccessibleName(QStringLiteral("Enseignant, classe, salle ou matière"));
    setHint(m_text,
            QStringLiteral("Enseignant, classe, salle ou matière : trois lettres suffisent"));
    m_text->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("Found"));
    m_list->setIndentation(12);
    m_list->header()->resizeSection(0, 220);
    m_list->header()->resizeSection(1, 190);
    m_list->header()->resizeSection(2, 130);

    auto* column = new QVBoxLayout(this);
    auto* words = new QHBoxLayout;
    addField(words, QStringLiteral("&Qui ou quoi"), m_text);
    column->addLayout(words);
    column->addWidget(m_list, 1);
    column->addWidget(statusLine());
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const auto button = [&](const QString& text, const char* name, auto act) {
        auto* made = new QPushButton(text);
        made->setObjectName(QString::fromLatin1(name));
        connect(made, &QPushButton::clicked, this, act);
        buttons->addWidget(made);
    };
    button(QStringLiteral("&Voir sur le plan"), "GoToBox",
           [this] { choose(m_list->currentItem()); });
    button(QStringLiteral("&Sa semaine"), "OpenWeek", [this] { openWeek(); });
    button(QStringLiteral("&Exporter…"), "ExportAnswer", [this] {
        if (m_document) {
            exportAnswer(files::AnswerKind::Hits, *m_document);
        }
    });
    column->addLayout(buttons);

    connect(m_text, &QLineEdit::textChanged, this, [this] { answer(); });
    connect(m_text, &QLineEdit::returnPressed, this, [this] { choose(m_list->currentItem()); });
    connect(m_list, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item) { choose(item); });
    m_text->onDown = [this] { m_list->setFocus(); };
    resize(kFindSize);
}

void FindWindow::presentAnew()
{
    present();
    m_text->setFocus();
    m_text->selectAll();
}

void FindWindow::showAnswer(const shell::Inquiry& inquiry)
{
    m_list->clear();
    m_document.reset();
    const QString text = m_text->text().trimmed();
    const QString form = answers::searchForm(text);
    const auto askForMore = [this] { tell(QStringLiteral("Tapez au moins trois lettres")); };
    if (form.isEmpty()) {
        askForMore();
        return;
    }
    const answers::AskedWeek week = shownWeek(desk().shell().form(), inquiry.rhythm());
    const QString open = inquiry.whyOpen(week.date.isValid());
    if (!open.isEmpty()) {
        tell(open + QStringLiteral(" : rien n’est montré."), true);
        return;
    }
    files::AnswerDocument document = inquiry.find(text, week);
    auto& hits = std::get<files::HitList>(document.answer);
    if (form.size() < kLeastLetters) { // which are in many names: but one may be no longer
        std::erase_if(hits, [&form](const answers::Hit& hit) {
            return answers::searchForm(hit.name.trimmed()) != form;
        });
        if (hits.empty()) {
            askForMore();
            return;
        }
    }
    m_document = std::move(document);
    list(inquiry, std::get<files::HitList>(m_document->answer));
}

void FindWindow::clearAnswer()
{
    m_list->clear();
    m_document.reset();
}

std::vector<FindWindow::Found> FindWindow::found(const timetable::Occupancy& occupancy,
                                                 const std::vector<answers::Hit>& hits) const
{
    const int today = shownDay(desk().shell().form());
    std::vector<Found> all;
    for (std::size_t number = 0; number < hits.size(); ++number) {
        const answers::Hit& hit = hits[number];
        const auto add = [&](std::vector<timetable::HoldingId> holdings) {
            const bool isToday =
                !holdings.empty() && occupancy.holding(holdings.front()).day == today;
            all.push_back({number, std::move(holdings), isToday});
        };
        for (const timetable::HoldingId id : hit.items) {
            if (!occupancy.holding(id).time) {
                add({id});
            }
        }
        for (const answers::WeekBox& box : answers::weekBoxes(occupancy, hit.subject, hit.items)) {
            add(box.holdings);
        }
        if (hit.items.empty()) {
            add({});
        }
    }
    std::stable_partition(all.begin(), all.end(), [](const Found& row) { return row.isToday; });
    return all;
}

QTreeWidgetItem* FindWindow::addRow(QTreeWidgetItem* under, const timetable::Occupancy& occupancy,
                                    const answers::Hit& hit,
                                    const std::vector<timetable::HoldingId>& holdings)
{
    QStringList texts{answers::titled(answers::kindWords(hit.subject), hit.name)};
    if (holdings.empty()) {
        texts << QStringLiteral("aucune séance cette semaine");
    } else {
        QStringList classes;
        for (const timetable::HoldingId id : holdings) {
            classes << occupancy.describe(occupancy.holding(id)).className;
        }
        const timetable::Holder holder = occupancy.describe(occupancy.holding(holdings.front()));
        texts << when(holder) << holder.rooms.join(QStringLiteral(", "))
              << what(holder, classes, hit.name);
    }
    auto* row = new QTreeWidgetItem(under, texts);
    row->setToolTip(3, plainToolTip(row->text(3)));
    row->setData(0, kFirstHoldingRole, holdings.empty() ? -1 : holdings.front().index());
    return row;
}

void FindWindow::list(const shell::Inquiry& inquiry, const std::vector<answers::Hit>& hits)
{
    const std::vector<Found> all = found(inquiry.occupancy(), hits);
    QTreeWidgetItem* under = nullptr;
    bool isUnderToday = false;
    for (std::size_t index = 0; index < std::min(all.size(), kMostRows); ++index) {
        const Found& row = all[index];
        if (under == nullptr || row.isToday != isUnderToday) {
            isUnderToday = row.isToday;
            under = heading(m_list, isUnderToday
                                        ? QStringLiteral("Le jour affiché, ") +
                                              answers::dayWords(shownDay(desk().shell().form()))
                                        : QStringLiteral("Dans la semaine"));
        }
        addRow(under, inquiry.occupancy(), hits[row.hit], row.holdings)
            ->setData(0, kHitRole, static_cast<int>(row.hit));
    }
    if (QTreeWidgetItem* first = m_list->topLevelItem(0)) {
        m_list->setCurrentItem(first->child(0));
    }
    QString sentence = hits.empty()       ? QStringLiteral("Personne ni rien ne porte ce nom")
                       : hits.size() == 1 ? QStringLiteral("1 nom trouvé")
                                          : QStringLiteral("%1 noms trouvés").arg(hits.size());
    if (all.size() > kMostRows) {
        sentence += QStringLiteral(", %1 lignes de plus : précisez").arg(all.size() - kMostRows);
    }
    tell(sentence + QStringLiteral("  ·  ") +
             answers::weekWords(shownWeek(desk().shell().form(), inquiry.rhythm())),
         hits.empty());
}

void FindWindow::choose(const QTreeWidgetItem* item)
{
    const shell::Inquiry* inquiry = desk().inquiry();
    if (item == nullptr || inquiry == nullptr || !m_document) {
        return;
    }
    const int holding = item->data(0, kFirstHoldingRole).toInt();
    if (item->parent() == nullptr) {
        return; // a heading
    }
    if (holding < 0) {
        openWeek();
        return;
    }
    hide();
    ties().go(shell::Destination::of(inquiry->occupancy(), timetable::HoldingId(holding)));
}

void FindWindow::openWeek()
{
    const QTreeWidgetItem* item = m_list->currentItem();
    if (item == nullptr || item->parent() == nullptr || !m_document) {
        return;
    }
    const auto& hits = std::get<files::HitList>(m_document->answer);
    ties().showWeekOf(hits.at(static_cast<std::size_t>(item->data(0, kHitRole).toInt())).subject);
}

} // namespace app
