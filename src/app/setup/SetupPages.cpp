#include "app/setup/SetupPages.h"

#include "app/PlainTexts.h"
#include "app/setup/SetupWizard.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

namespace app
{
namespace
{

using setup::SourceKind;

/// A sentence below a control, indented as its text is.
QLabel* sentenceLabel(const QString& text)
{
    QLabel* label = plainLabel(text);
    label->setWordWrap(true);
    label->setIndent(24);
    label->setEnabled(true);
    return label;
}

constexpr const char* kFaultColour = "color: #9b1c1c;";

/// What is missing or has failed.
void tellFault(QLabel& told, const QString& text)
{
    told.setStyleSheet(QString::fromLatin1(kFaultColour));
    told.setText(text);
}

/// How it goes on.
void tellNews(QLabel& told, const QString& text)
{
    told.setStyleSheet({});
    told.setText(text);
}

/// Where a page says what is missing, what has failed or how it goes on.
QLabel* toldLabel()
{
    QLabel* label = plainLabel();
    label->setObjectName(QStringLiteral("Told"));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

bool tryOut(SetupWizard& wizard, QLabel& told)
{
    tellNews(told, QStringLiteral("Connexion à la base…"));
    const QString fault = wizard.tryOut();
    tellFault(told, fault);
    return fault.isEmpty();
}

QLineEdit* addField(QFormLayout& form, const QString& label, const QString& name)
{
    auto* field = new QLineEdit;
    field->setObjectName(name);
    form.addRow(label, field);
    return field;
}

} // namespace

SetupKindPage::SetupKindPage(SetupWizard& wizard, int details, int found)
    : m_wizard(wizard), m_details(details), m_found(found), m_present(plainLabel()),
      m_told(toldLabel()), m_installation(new QWidget)
{
    setTitle(QStringLiteral("Où est votre emploi du temps ?"));
    setSubTitle(QStringLiteral("Tempora lit votre base, et n’y écrit que les absences."));
    auto* layout = new QVBoxLayout(this);
    m_present->setObjectName(QStringLiteral("Present"));
    m_present->setWordWrap(true);
    layout->addWidget(m_present);
    addChoice(*layout, SourceKind::Demo,
              QStringLiteral("&Essayer avec une faculté de démonstration"),
              QStringLiteral("Une faculté inventée, pour voir."));
    addChoice(*layout, SourceKind::SqliteFile, QStringLiteral("Ma base (&fichier SQLite)"),
              QStringLiteral("Un fichier sur ce poste ou sur un disque partagé."));
    addChoice(*layout, SourceKind::Server, QStringLiteral("Ma base (&MariaDB ou MySQL)"),
              QStringLiteral("Un serveur ; il vous faut son nom, un compte et un mot de passe."));
    if (m_wizard.ties().offersAccess) {
        addChoice(*layout, SourceKind::Access, QStringLiteral("Ma base &Access"),
                  QStringLiteral("Un fichier .mdb ou .accdb."));
    }
    firstChoice().button->setChecked(true);
    addInstallation(*layout);
    m_lookAgain.callOnTimeout(this, [this] { tellDrivers(); });
    tellDrivers();
    layout->addStretch();
    layout->addWidget(m_told);
}

void SetupKindPage::addChoice(QVBoxLayout& layout, SourceKind kind, const QString& text,
                              const QString& sentence)
{
    auto* button = new QRadioButton(text);
    button->setObjectName(QStringLiteral("Kind%1").arg(static_cast<int>(kind)));
    m_choices.push_back({button, kind, sentence, sentenceLabel({})});
    layout.addWidget(button);
    layout.addWidget(m_choices.back().told);
}

/// What is set up now; else the first whose driver is there.
const SetupKindPage::Choice& SetupKindPage::firstChoice() const
{
    const auto present =
        std::find_if(m_choices.begin(), m_choices.end(), [this](const Choice& choice) {
            return m_wizard.present().source && choice.kind == m_wizard.source().kind;
        });
    if (present != m_choices.end()) {
        return *present;
    }
    const auto possible =
        std::find_if(m_choices.begin(), m_choices.end(),
                     [this](const Choice& choice) { return hasDriver(choice.kind); });
    return possible == m_choices.end() ? m_choices.front() : *possible;
}

void SetupKindPage::addInstallation(QVBoxLayout& layout)
{
    auto* row = new QHBoxLayout(m_installation);
    row->setContentsMargins(0, 8, 0, 0);
    auto* install = new QPushButton(QStringLiteral("&Installer le pilote de SQLite…"));
    install->setObjectName(QStringLiteral("InstallDriver"));
    connect(install, &QPushButton::clicked, this, [this] { installDriver(); });
    row->addWidget(install);
    row->addWidget(plainLabel(QStringLiteral("Windows demandera l’accord d’un administrateur.")));
    row->addStretch();
    layout.addWidget(m_installation);
}

void SetupKindPage::tellDrivers()
{
    for (const Choice& choice : m_choices) {
        QString all = choice.sentence;
        if (!hasDriver(choice.kind)) {
            all += QStringLiteral(" Il y faut le pilote ODBC %1, qui manque sur ce poste.")
                       .arg(setup::ofDriver(choice.kind));
        } else if (choice.kind == SourceKind::Demo) {
            all += QStringLiteral(" Rien d’autre n’est nécessaire.");
        }
        choice.told->setText(all);
        choice.button->setAccessibleDescription(all);
    }
    const bool isThere = hasDriver(SourceKind::SqliteFile);
    m_installation->setVisible(m_wizard.ties().installSqliteDriver != nullptr && !isThere);
    if (isThere && m_lookAgain.isActive()) {
        m_lookAgain.stop();
        m_told->clear();
    }
}

void SetupKindPage::installDriver()
{
    if (m_wizard.ties().installSqliteDriver()) {
        tellNews(*m_told,
                 QStringLiteral("Une fois le pilote installé, continuez par « Suivant »."));
        m_lookAgain.start(std::chrono::milliseconds(500));
    } else {
        tellFault(*m_told, QStringLiteral("L’installation n’a pas commencé. Ouvrez vous-même "
                                          "pilote-sqlite.exe, dans le dossier de Tempora."));
    }
}

bool SetupKindPage::hasDriver(SourceKind kind) const
{
    return !setup::driverFor(kind, m_wizard.ties().drivers()).isEmpty();
}

SourceKind SetupKindPage::chosen() const
{
    for (const Choice& choice : m_choices) {
        if (choice.button->isChecked()) {
            return choice.kind;
        }
    }
    return SourceKind::Demo;
}

void SetupKindPage::initializePage()
{
    const QString& present = m_wizard.present().words;
    m_present->setText(present.isEmpty() ? QString()
                                         : QStringLiteral("Actuellement : %1").arg(present));
    m_present->setVisible(!present.isEmpty());
}

int SetupKindPage::nextId() const
{
    return chosen() == SourceKind::Demo ? m_found : m_details;
}

bool SetupKindPage::validatePage()
{
    m_wizard.source().kind = chosen();
    return chosen() != SourceKind::Demo || tryOut(m_wizard, *m_told);
}

SetupDetailsPage::SetupDetailsPage(SetupWizard& wizard, int found)
    : m_wizard(wizard), m_foundPage(found), m_forms(new QStackedWidget), m_told(toldLabel())
{
    auto* layout = new QVBoxLayout(this);
    m_forms->addWidget(makeFileForm());
    m_forms->addWidget(makeServerForm());
    layout->addWidget(m_forms);
    layout->addStretch();
    layout->addWidget(m_told);
}

QWidget* SetupDetailsPage::makeFileForm()
{
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    m_file = new QLineEdit;
    m_file->setObjectName(QStringLiteral("File"));
    m_file->setText(m_wizard.source().file);
    auto* choose = new QPushButton(QStringLiteral("&Parcourir…"));
    choose->setObjectName(QStringLiteral("ChooseFile"));
    connect(choose, &QPushButton::clicked, this, [this] { chooseFile(); });
    auto* row = new QHBoxLayout;
    row->addWidget(m_file);
    row->addWidget(choose);
    auto* label = new QLabel(QStringLiteral("&Fichier :"));
    label->setBuddy(m_file);
    form->addRow(label, row);
    return page;
}

QWidget* SetupDetailsPage::makeServerForm()
{
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    m_host = addField(*form, QStringLiteral("&Serveur :"), QStringLiteral("Host"));
    m_port = addField(*form, QStringLiteral("P&ort :"), QStringLiteral("Port"));
    m_base = addField(*form, QStringLiteral("&Base :"), QStringLiteral("Base"));
    m_login = addField(*form, QStringLiteral("&Compte :"), QStringLiteral("Login"));
    m_password = addField(*form, QStringLiteral("&Mot de passe :"), QStringLiteral("Password"));
    m_password->setEchoMode(QLineEdit::Password);
    const setup::Server& server = m_wizard.source().server;
    m_host->setText(server.host);
    m_port->setText(server.port);
    m_base->setText(server.base);
    m_login->setText(server.login);
    m_password->setText(server.password);
    return page;
}

void SetupDetailsPage::chooseFile()
{
    const QString kinds = m_wizard.source().kind == SourceKind::Access
                              ? QStringLiteral("Bases Access (*.mdb *.accdb)")
                              : QStringLiteral("Bases SQLite (*.sqlite *.sqlite3 *.db)");
    const QString path = QFileDialog::getOpenFileName(
        this, QStringLiteral("Votre base"), m_file->text(),
        kinds + QStringLiteral(";;") + QStringLiteral("Tous les fichiers (*)"));
    if (!path.isEmpty()) {
        m_file->setText(path);
    }
}

void SetupDetailsPage::initializePage()
{
    const bool isServer = m_wizard.source().kind == SourceKind::Server;
    setTitle(isServer ? QStringLiteral("Votre serveur") : QStringLiteral("Votre fichier"));
    setSubTitle(isServer ? QStringLiteral("La personne qui s’occupe du serveur vous donne ces "
                                          "renseignements.")
                         : QStringLiteral("Le fichier reste où il est."));
    m_forms->setCurrentIndex(isServer ? 1 : 0);
    // The wizard gives the focus to its button when it has shown the page.
    QMetaObject::invokeMethod(
        isServer ? m_host : m_file, [field = isServer ? m_host : m_file] { field->setFocus(); },
        Qt::QueuedConnection);
    m_told->clear();
}

bool SetupDetailsPage::validatePage()
{
    setup::Source& source = m_wizard.source();
    source.file = m_file->text().trimmed();
    source.server = {m_host->text(), m_port->text(), m_login->text(), m_password->text(),
                     m_base->text()};
    return tryOut(m_wizard, *m_told);
}

SetupFoundPage::SetupFoundPage(SetupWizard& wizard) : m_wizard(wizard), m_found(plainLabel())
{
    setTitle(QStringLiteral("Votre base est là"));
    setSubTitle(
        QStringLiteral("Aucun réglage n’est encore enregistré : « Ouvrir le plan » le fait."));
    auto* layout = new QVBoxLayout(this);
    m_found->setObjectName(QStringLiteral("Found"));
    m_found->setWordWrap(true);
    layout->addWidget(m_found);
    layout->addSpacing(12);
    layout->addWidget(plainLabel(QStringLiteral("Réglages conseillés :")));
    layout->addStretch();
}

void SetupFoundPage::initializePage()
{
    m_found->setText(setup::inWords(m_wizard.findings()));
    showRecommendations();
}

void SetupFoundPage::showRecommendations()
{
    delete m_boxes; // those of another database
    m_boxes = new QWidget;
    auto* boxes = new QVBoxLayout(m_boxes);
    boxes->setContentsMargins(0, 0, 0, 0);
    for (setup::Recommendation& one : m_wizard.recommendations()) {
        auto* box = new QCheckBox(one.label);
        box->setObjectName(one.key);
        box->setChecked(one.isProposed);
        box->setAccessibleDescription(one.sentence);
        connect(box, &QCheckBox::toggled, this, [&one](bool isOn) { one.isProposed = isOn; });
        boxes->addWidget(box);
        boxes->addWidget(sentenceLabel(one.sentence));
    }
    auto* page = static_cast<QVBoxLayout*>(layout());
    page->insertWidget(page->count() - 1, m_boxes);
}

} // namespace app
