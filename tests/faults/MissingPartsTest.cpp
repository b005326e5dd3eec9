// Tables and columns missing one by one, while the window is open and at its start.

#include "db/Connection.h"
#include "demo/Schema.h"
#include "engine/EngineDesk.h"
#include "faults/ShownCells.h"

#include <map>

using namespace test;

namespace
{

/// What a user chooses, and has undone again.
struct Choice {
    const char* name;
    QStringList tables; ///< those whose parts it needs; all where none is named
    std::function<void(form::PlanForm&)> make;
    std::function<void(form::PlanForm&)> undo = [](form::PlanForm&) {};
};

std::vector<Choice> choices()
{
    using Form = form::PlanForm;
    return {
        {"every week", {}, [](Form& form) { form.OptFixe().select(); }},
        {"week A", {"emplois"}, [](Form& form) { form.OptA().select(); }},
        {"week B", {"emplois"}, [](Form& form) { form.OptB().select(); }},
        {"classes alone",
         {"emplois"},
         [](Form& form) {
             form.OptFixe().select();
             form.XOpEns.setChecked(false);
             form.XpMat.setChecked(false);
         },
         [](Form& form) {
             form.XOpEns.setChecked(true);
             form.XpMat.setChecked(true);
         }},
        {"one subject",
         {"emplois"},
         [](Form& form) {
             form.OptFixe().select();
             form.Cb_Mat.setListIndex(static_cast<int>(form.Cb_Mat.items().indexOf("Algèbre")));
             form.Check1.setChecked(true);
         },
         [](Form& form) { form.Check1.setChecked(false); }},
        {"make-ups",
         {"ratrap"},
         [](Form& form) { form.Check2.setChecked(true); },
         [](Form& form) { form.Check2.setChecked(false); }},
        {"exams",
         {"examen"},
         [](Form& form) { form.OpExam().select(); },
         [](Form& form) { form.OpEns().select(); }},
    };
}

class MissingParts : public OnTheTinyFaculty
{
protected:
    MissingParts()
    {
        // A part in a second room, which the tiny faculty does not have.
        alter("update emplois set XSalle = 'B2' where Salle = 'A2' and Seance = 'Lundi1'");
    }

    void alter(const QString& statement) { m_connection.execute(statement); }
    [[nodiscard]] demo::Flavour flavour()
    {
        return database().usesMySql() ? demo::Flavour::MariaDb : demo::Flavour::Sqlite;
    }
    [[nodiscard]] QString quoted(const QString& name) { return demo::quotedName(name, flavour()); }

    /// Makes each choice and compares what the plan shows then with what it showed before. A choice
    /// may end the program, in French words.
    void expectNoneFreed(EngineDesk& desk, const QString& table, const QString& fault)
    {
        for (const Choice& choice : choices()) {
            if (!choice.tables.isEmpty() && !choice.tables.contains(table)) {
                continue;
            }
            const QString place = fault + ", " + choice.name;
            try {
                choice.make(desk.form);
                desk.engine.refreshPlan();
                expectNothingFreed(m_whole[choice.name], desk.engine.content(), place);
            } catch (const runtime::RunTimeError& error) {
                expectTold(error, place);
            }
            runtime::skipOnError([&] { choice.undo(desk.form); });
        }
    }
    static void expectTold(const runtime::RunTimeError& error, const QString& fault)
    {
        EXPECT_FALSE(error.text().isEmpty()) << fault.toStdString();
        EXPECT_FALSE(error.activity().isEmpty()) << fault.toStdString();
    }
    void readWhole(EngineDesk& desk)
    {
        for (const Choice& choice : choices()) {
            choice.make(desk.form);
            desk.engine.refreshPlan();
            m_whole[choice.name] = shownCells(desk.engine.content());
            EXPECT_GT(m_whole[choice.name].size(), 0) << choice.name;
            choice.undo(desk.form);
        }
    }
    [[nodiscard]] static bool isReadAtTheStart(const QString& table)
    {
        return !QStringList{"emplois", "ratrap", "examen", "abscence", "etud_abs"}.contains(table);
    }
    /// Starts anew: the plan keeps the rule, or the program does not start and says why.
    void expectAStartThatIsTold(const QString& fault)
    {
        try {
            EngineDesk started(database());
            expectNothingFreed(m_whole["every week"], started.engine.content(), fault);
        } catch (const runtime::RunTimeError& error) {
            expectTold(error, fault);
        }
    }

private:
    db::Connection m_connection{database().connectString()};
    std::map<std::string, ShownCells> m_whole; ///< by choice
};

TEMPORA_ON_BOTH_DATABASES(MissingParts);

} // namespace

TEST_P(MissingParts, areTablesOneByOne)
{
    EngineDesk desk(database());
    readWhole(desk);
    for (const demo::Table& table : demo::tables()) {
        const QString rename = "alter table %1 rename to %2";
        alter(rename.arg(quoted(table.name), "ailleurs"));
        const QString fault = "no table " + table.name;
        expectNoneFreed(desk, table.name, fault);
        expectAStartThatIsTold(fault);
        alter(rename.arg("ailleurs", quoted(table.name)));
    }
    desk.form.OptFixe().select();
    desk.engine.refreshPlan();
    EXPECT_TRUE(desk.engine.content().faults.empty());
}

TEST_P(MissingParts, areColumnsOneByOne)
{
    EngineDesk desk(database());
    readWhole(desk);
    for (const demo::Table& table : demo::tables()) {
        for (const demo::Column& column : table.columns) {
            const QString rename = "alter table " + quoted(table.name) + " rename column %1 to %2";
            alter(rename.arg(quoted(column.name), "ailleurs"));
            const QString fault = "no column " + table.name + '.' + column.name;
            expectNoneFreed(desk, table.name, fault);
            if (isReadAtTheStart(table.name)) {
                expectAStartThatIsTold(fault);
            }
            alter(rename.arg("ailleurs", quoted(column.name)));
        }
    }
    desk.form.OptFixe().select();
    desk.engine.refreshPlan();
    EXPECT_TRUE(desk.engine.content().faults.empty());
}
