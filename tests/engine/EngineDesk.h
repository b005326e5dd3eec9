#pragma once

#include "engine/Engine.h"
#include "support/RuntimeMatchers.h"
#include "support/TinyFaculty.h"

#include <QStringList>

namespace test
{

/// The engine of a database with the tiny faculty, brought up as the program brings it up, on
/// Monday, 17 March 2025. Class, teacher and subject are ticked, a page has 19 lines; the plan is
/// drawn.
class EngineDesk
{
public:
    /// `through`: the connection string, when it is not the database's own.
    explicit EngineDesk(const TestDatabase& database, bool plain = false,
                        const QString& through = {}, db::Database::Patience patience = {})
        : connection(std::make_shared<db::Database>(database.usesMySql(), patience)),
          engine(surroundings(plain), {nullptr, nullptr, connection, state})
    {
        engine.chooseDatabase(database.usesMySql());
        form.Combo10.design({"1ère Sem. d'Examen", "2ème Sem. d'Examen", "Sem. de Contrôle"}, 0);
        for (form::CheckBox* box : {&form.XOpCl, &form.XOpEns, &form.XpMat}) {
            box->design(true);
        }
        form.Total_L_P.setText("19");
        engine.startAppearance();
        engine.loadEstablishment(
            {database.baseName(), through.isEmpty() ? database.connectString() : through, "1"});
        engine.loadSlots();
        engine.placeRoomRows();
        engine.fillRoomPage();
        engine.showCurrentWeek();
        engine.readSeanceTypes();
        engine.listDepartments();
        form.visible = true;
        engine.refreshPlan();
    }

    /// How many refreshes the action starts.
    [[nodiscard]] std::uint64_t refreshesOf(const std::function<void()>& action) const
    {
        const std::uint64_t before = engine.refreshCount();
        action();
        return engine.refreshCount() - before;
    }
    /// How many statements the action sends.
    [[nodiscard]] long long statementsOf(const std::function<void()>& action) const
    {
        const long long before = engine.statementCount();
        action();
        return engine.statementCount() - before;
    }
    /// The drawn rooms, "A2:1" for one with a box.
    [[nodiscard]] QStringList drawn() const
    {
        QStringList rows;
        for (const plan::PlanRow& row : engine.content().rows) {
            rows << row.room + u':' + QString::number(row.boxes.size());
        }
        return rows;
    }

    /// What the user answers when asked for a file, and how often that was.
    QString chosenFile;
    int filesAsked = 0;
    /// The message boxes shown, "title: text".
    QStringList messages;
    /// What the engine sends its statements over.
    std::shared_ptr<db::Database> connection;
    std::shared_ptr<plan::PlanState> state = std::make_shared<plan::PlanState>();
    engine::Engine engine;
    form::PlanForm& form = engine.form();

private:
    [[nodiscard]] engine::Surroundings surroundings(bool plain)
    {
        engine::Surroundings around;
        around.today = [] { return QDate(2025, 3, 17); };
        around.seed = 1;
        around.plain = plain;
        around.openFile = [this](const QString&, const QString&) {
            ++filesAsked;
            return chosenFile;
        };
        around.showMessage = [this](const QString& title, const QString& text) {
            messages << title + ": " + text;
        };
        return around;
    }
};

/// The engine on both databases.
class OnTheTinyFaculty : public OnBothDatabases
{
protected:
    OnTheTinyFaculty() { createTinyFaculty(database()); }
};

} // namespace test
