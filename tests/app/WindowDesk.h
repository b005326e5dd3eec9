#pragma once

#include "app/Hands.h"
#include "app/PlClasse.h"
#include "app/PlanView.h"
#include "files/JsonExport.h"
#include "paint/Overlays.h"
#include "shell/PlanReading.h"
#include "support/ProgramSetup.h"
#include "support/RuntimeMatchers.h"
#include "support/TinyFaculty.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QJsonDocument>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QWindow>
#include <memory>

namespace test
{

/// The real window on the tiny faculty, on the screen and in use by `hands`. Today is Wednesday,
/// 19 March 2025; the random colours are those of seed 1.
class TheWindow : public testing::Test
{
protected:
    explicit TheWindow(DatabaseKind kind = DatabaseKind::Sqlite) : database(kind)
    {
        createTinyFaculty(database);
    }

    /// Makes the window, not yet started up, with the settings as they are by then.
    void create();
    /// The same, started up and shown.
    void open(QSize size = {1366, 740});

    [[nodiscard]] app::PlClasse& window() { return *m_window; }
    [[nodiscard]] form::PlanForm& form() { return m_window->shell().form(); }
    /// What the plan shows.
    [[nodiscard]] QJsonObject plan() const
    {
        return QJsonDocument::fromJson(
                   files::planAsJson({{m_window->shell().engine().drawnPage()}, {}}))
            .object();
    }
    /// Waits until the plan shows these texts in the room.
    void expectTexts(const QString& room, const QMap<int, QString>& texts);
    void expectRooms(const QStringList& rooms);
    [[nodiscard]] std::uint64_t redraws() const
    {
        return m_window->shell().engine().refreshCount();
    }

    /// The control of that name.
    template <typename Widget>
    [[nodiscard]] Widget* control(const char* name)
    {
        auto* widget = m_window->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    [[nodiscard]] app::PlanView* view() { return control<app::PlanView>("PlanView"); }
    /// The places of a box's pictures and labels in the plan. `row` and `box` count from 0.
    [[nodiscard]] paint::OverlayPlaces overlays(std::size_t row, std::size_t box);
    /// Where the middle of a box's group counter lies on the screen.
    [[nodiscard]] QPoint counterOnScreen(std::size_t row, std::size_t box);

    /// The files that the window was asked to open.
    QStringList opened;
    TestDatabase database;
    ProgramSetup setup{database};
    Hands hands;

private:
    std::unique_ptr<app::PlClasse> m_window;
};

} // namespace test
