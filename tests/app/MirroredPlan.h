#pragma once

#include "app/FormMirror.h"
#include "shell/ShellDesk.h"

namespace test
{

/// The plan of Monday, 17 March 2025, and the mirror that keeps widgets up to date as the window
/// does. Widgets of a test bind to the mirror, which lives longer than they do.
class MirroredPlan : public testing::Test
{
protected:
    MirroredPlan()
    {
        createTinyFaculty(m_database);
        desk.play({"--date", "2025-03-17"});
    }

    [[nodiscard]] engine::Engine& engine() { return desk.shell().engine(); }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};

protected:
    ShellDesk desk{m_database};
    app::FormMirror mirror{[this](const std::function<void()>& action) {
        action();
        mirror.sync();
    }};
};

} // namespace test
