#include "app/asking/ClashesWindow.h"

#include "answers/ClashSentence.h"
#include "answers/Words.h"
#include "app/PlainTexts.h"
#include "app/asking/AnswerList.h"
#include "app/asking/AskingFields.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace app
{
namespace
{

constexpr QSize kSize(1000, 520);
constexpr int kClashRole = Qt::UserRole; ///< the clash's place in the answer

QString when(const answers::Clash& clash)
{
    if (clash.unplaced) {
        return QStringLiteral("jour inconnu");
    }
    if (clash.day == timetable::kNoDay) {
        return {};
    }
    QString words = answers::dayWords(clash.day, clash.date);
    if (clash.time) {
        words += u' ' + answers::spanWords(*clash.time);
    }
    return clash.weeks == timetable::Week::Every
               ? words
               : words + QStringLiteral(", ") + answers::weekWords(clash.weeks);
}

/// What a row is called: whoever walks down the first column hears many of one kind in a row.
QString aloud(const answers::Clash& clash)
{
    QStringList words{answers::kindWords(clash.kind) + QStringLiteral(" : ") + clash.name,
                      when(clash)};
    words.removeAll(QString());
    return words.join(QStringLiteral(", "));
}

} // namespace

ClashesWindow::ClashesWindow(AnswerDesk& desk, Ties ties, QWidget* parent)
    : AnswerWindow(desk, std::move(ties), QStringLiteral("Conflits"), parent),
      m_kind(new QComboBox),
      m_list(new AnswerList(QStringLiteral("Conflits"),
                            {QStringLiteral("Conflit"), QStringLiteral("Quand"),
                             QStringLiteral("Ce qui ne va pas")})),
      m_sentence(plainLabel())
{
    m_sentence->setObjectName(QStringLiteral("ClashSentence"));
    m_sentence->setWordWrap(true);
    m_sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        m_sentence->setText(item == nullptr ? QString() : item->text(2));
    });
    setObjectName(QStringLiteral("ClashesWindow"));
    m_kind->setObjectName(QStringLiteral("ClashKind"));
    m_kind->setAccessibleName(QStringLiteral("Conflits montrés"));
    m_list->setObjectName(QStringLiteral("Clashes"));
    m_list->header()->resizeSection(0, 170);
    m_list->header()->resizeSection(1, 230);
    auto* column = new QVBoxLayout(this);
    auto* fields = new QHBoxLayout;
    addField(fields, QStringLiteral("&Montrer"), m_kind);
    fields->addStretch();
    column->addLayout(fields);
    column->addWidget(m_list, 1);
    column->addWidget(m_sentence);
    column->addWidget(statusLine());
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const auto add = [&](const QString& text, const char* name, auto act) {
        auto* button = new QPushButton(text);
        button->setObjectName(QString::fromLatin1(name));
        connect(button, &QPushButton::clicked, this, act);
        buttons->addWidget(button);
    };
    add(QStringLiteral("&Voir sur le plan"), "GoToClash", [this] { go(m_list->currentItem()); });
    add(QStringLiteral("&Exporter…"), "ExportAnswer", [this] {
        if (m_document) {
            exportAnswer(files::AnswerKind::Clashes, *m_document);
        }
    });
    column->addLayout(buttons);
    connect(m_kind, &QComboBox::currentIndexChanged, this, [this] {
        if (const shell::Inquiry* inquiry = this->desk().inquiry(); inquiry && m_document) {
            list(*inquiry);
        }
    });
    connect(m_list, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item) { go(item); });
    resize(kSize);
}

void ClashesWindow::showAnswer(const shell::Inquiry& inquiry)
{
    const QString open = inquiry.whyOpen(false, true);
    if (!open.isEmpty()) {
        clearAnswer();
        tell(open + QStringLiteral(" : on ne sait pas s’il y a des conflits."), true);
        return;
    }
    m_document = inquiry.clashes();
    // The kinds that there are, each with its number.
    QMap<int, int> counts;
    for (const answers::Clash& clash : std::get<files::ClashList>(m_document->answer)) {
        ++counts[static_cast<int>(clash.kind)];
    }
    const QSignalBlocker quiet(m_kind);
    const QVariant chosen = m_kind->currentData();
    m_kind->clear();
    m_kind->addItem(QStringLiteral("Tous"), -1);
    for (auto kind = counts.cbegin(); kind != counts.cend(); ++kind) {
        m_kind->addItem(QStringLiteral("%1 (%2)")
                            .arg(answers::kindWords(static_cast<answers::ClashKind>(kind.key())))
                            .arg(kind.value()),
                        kind.key());
    }
    m_kind->setCurrentIndex(std::max(0, m_kind->findData(chosen)));
    list(inquiry);
}

void ClashesWindow::clearAnswer()
{
    m_list->clear();
    m_document.reset();
}

void ClashesWindow::list(const shell::Inquiry& inquiry)
{
    const int before = m_list->indexOfTopLevelItem(m_list->currentItem());
    m_list->clear();
    const int wanted = m_kind->currentData().toInt();
    const auto& clashes = std::get<files::ClashList>(m_document->answer);
    for (std::size_t index = 0; index < clashes.size(); ++index) {
        const answers::Clash& clash = clashes[index];
        if (wanted >= 0 && wanted != static_cast<int>(clash.kind)) {
            continue;
        }
        auto* item =
            new QTreeWidgetItem(m_list, {answers::kindWords(clash.kind), when(clash),
                                         answers::clashSentence(inquiry.occupancy(), clash)});
        item->setData(0, kClashRole, static_cast<int>(index));
        item->setData(0, Qt::AccessibleTextRole, aloud(clash));
        item->setToolTip(2, plainToolTip(item->text(2)));
    }
    m_list->setCurrentItem(
        m_list->topLevelItem(std::clamp(before, 0, std::max(0, m_list->topLevelItemCount() - 1))));
    const auto count = static_cast<std::size_t>(m_list->topLevelItemCount());
    QString sentence = count == 0   ? QStringLiteral("Aucun conflit")
                       : count == 1 ? QStringLiteral("1 conflit")
                                    : QStringLiteral("%1 conflits").arg(count);
    if (count != clashes.size()) {
        sentence += QStringLiteral(" sur %1").arg(clashes.size());
    }
    tell(sentence);
}

void ClashesWindow::go(const QTreeWidgetItem* item)
{
    const shell::Inquiry* inquiry = desk().inquiry();
    if (item == nullptr || inquiry == nullptr || !m_document) {
        return;
    }
    const auto& clashes = std::get<files::ClashList>(m_document->answer);
    const answers::Clash& clash =
        clashes.at(static_cast<std::size_t>(item->data(0, kClashRole).toInt()));
    if (clash.holders.empty()) {
        tell(QStringLiteral("Rien de cela n’a de place sur le plan"), true);
        return;
    }
    hide(); // the plan is to be seen; the list keeps its place
    ties().go(shell::Destination::of(inquiry->occupancy(), clash.holders.front()));
}

} // namespace app
