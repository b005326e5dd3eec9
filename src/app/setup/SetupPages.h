#pragma once

#include "setup/Source.h"

#include <QTimer>
#include <QWizardPage>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QStackedWidget;
class QVBoxLayout;

namespace app
{

class SetupWizard;

/// What there is: the demo faculty, a file, a server. Shows what is set up now.
class SetupKindPage : public QWizardPage
{
public:
    /// `details` and `found`: the pages that follow; the demo faculty has no details.
    SetupKindPage(SetupWizard& wizard, int details, int found);

    [[nodiscard]] int nextId() const override;
    [[nodiscard]] bool validatePage() override;
    void initializePage() override;

private:
    struct Choice {
        QRadioButton* button;
        setup::SourceKind kind;
        QString sentence;
        QLabel* told; ///< the sentence, and what is missing
    };

    void addChoice(QVBoxLayout& layout, setup::SourceKind kind, const QString& text,
                   const QString& sentence);
    [[nodiscard]] const Choice& firstChoice() const;
    void addInstallation(QVBoxLayout& layout);
    void tellDrivers();
    void installDriver();
    [[nodiscard]] bool hasDriver(setup::SourceKind kind) const;
    [[nodiscard]] setup::SourceKind chosen() const;

    SetupWizard& m_wizard;
    int m_details;
    int m_found;
    QLabel* m_present;
    QLabel* m_told;
    QWidget* m_installation;
    QTimer m_lookAgain; ///< while a driver is being installed, which nobody tells us the end of
    std::vector<Choice> m_choices;
};

/// Where the file is, or the server and its account. Begins with what is set up.
class SetupDetailsPage : public QWizardPage
{
public:
    SetupDetailsPage(SetupWizard& wizard, int found);

    [[nodiscard]] int nextId() const override { return m_foundPage; }
    [[nodiscard]] bool validatePage() override;
    void initializePage() override;

private:
    [[nodiscard]] QWidget* makeFileForm();
    [[nodiscard]] QWidget* makeServerForm();
    void chooseFile();

    SetupWizard& m_wizard;
    int m_foundPage;
    QStackedWidget* m_forms;
    QLineEdit* m_file = nullptr;
    QLineEdit* m_host = nullptr;
    QLineEdit* m_port = nullptr;
    QLineEdit* m_base = nullptr;
    QLineEdit* m_login = nullptr;
    QLineEdit* m_password = nullptr;
    QLabel* m_told;
};

/// What was found, and the settings that are proposed.
class SetupFoundPage : public QWizardPage
{
public:
    explicit SetupFoundPage(SetupWizard& wizard);

    [[nodiscard]] int nextId() const override { return -1; }
    void initializePage() override;

private:
    void showRecommendations();

    SetupWizard& m_wizard;
    QLabel* m_found;
    QWidget* m_boxes = nullptr;
};

} // namespace app
