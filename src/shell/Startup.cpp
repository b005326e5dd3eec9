// The start-up sequence of the program. Its order is part of what it does: later steps read what
// earlier ones have set, and the first one that fails ends the program.

#include "shell/Shell.h"

#include "plan/PlanGrid.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

namespace shell
{
namespace
{

/// Converts a setting's text; the error names the setting and the text.
template <typename Convert>
auto converted(const QString& key, const QString& text, Convert convert)
{
    return runtime::during(
        QStringLiteral("Lecture du paramètre « %1 » (valeur « %2 »)").arg(key, text),
        [&] { return convert(text); });
}

} // namespace

QString Shell::setting(const QString& key, const QString& fallback) const
{
    return m_settings.get(key, fallback);
}

void Shell::Form_Load()
{
    chooseDatabase();
    m_SkinOn =
        converted(QStringLiteral("SKin"), setting(QStringLiteral("SKin"), QStringLiteral("False")),
                  runtime::toBoolean); // no skin is attached: the platform's look serves
    m_totals.CountingOn = m_form.Chk_Compt.isChecked();
    m_form.Combo10.clear();
    m_form.Combo10.addItem(QStringLiteral("1ère Sem. d'Examen"));
    m_form.Combo10.addItem(QStringLiteral("2ème Sem. d'Examen"));
    m_form.Combo10.addItem(QStringLiteral("Sem. de Contrôle"));
    m_form.Combo10.setListIndex(0);
    m_layout.CellTextFormat = plan::CellLayout::kCentredLines;
    appearance::Adapter_Cellules(m_form, m_layout);
    m_colors.fillRandomly();
    m_form.Lab_Ver.caption = QStringLiteral(TEMPORA_VERSION);
    m_colors.PaletteName = setting(QStringLiteral("Palette"), QString());
    m_PaletteAtStart = m_colors.PaletteName;
    if (!m_colors.PaletteName.isEmpty()) {
        m_palette.Charger_Palette(m_colors.PaletteName);
    }
    readDisplayOptions();
    const QString lines = setting(QStringLiteral("Total_L_P"), QStringLiteral("19"));
    converted(QStringLiteral("Total_L_P"), lines, runtime::toInt16);
    m_form.Total_L_P.setText(lines);
    m_RoomsPerPage = runtime::toInt16(m_form.Total_L_P.text());
    m_establishment =
        context::LoadEstablishment(m_form, m_database, m_periods, m_page,
                                   {m_choice.nameInMessages(), m_choice.strings.ConnectString,
                                    setting(QStringLiteral("Tranche"), QStringLiteral("1"))});
    m_slots.LoadSlots();
    PlaceRoomRows();
    if (converted(QStringLiteral("Grille_Visible"),
                  setting(QStringLiteral("Grille_Visible"), QStringLiteral("True")),
                  runtime::toBoolean)) {
        m_form.ChkGrille.setChecked(true);
    }
    m_rooms.FillRoomPage();
    m_periods.showCurrentWeek();
    readSeanceTypes();
    listDepartments();
    m_loaded = true;
}

void Shell::chooseDatabase()
{
    const bool useMySql =
        converted(QStringLiteral("Mysql"),
                  setting(QStringLiteral("Mysql"), QStringLiteral("False")), runtime::toBoolean);
    m_database.setUseMySql(useMySql);
    m_form.ImgSql.visible = useMySql;
    m_form.ImgAccess.visible = !useMySql;
    m_choice = shell::chooseDatabase(m_settings, useMySql, m_environment.applicationFolder);
}

void Shell::readDisplayOptions()
{
    const auto read = [this](const QString& key) {
        return converted(key, setting(key, QStringLiteral("1")), runtime::toInt16);
    };
    m_ShowTeacherAtStart = read(QStringLiteral("ChkEnseignant"));
    m_ShowClassAtStart = read(QStringLiteral("ChkClasse"));
    m_ShowSubjectAtStart = read(QStringLiteral("ChkMatiere"));
    m_form.XOpEns.setChecked(m_ShowTeacherAtStart == 1);
    m_form.XOpCl.setChecked(m_ShowClassAtStart == 1);
    m_form.XpMat.setChecked(m_ShowSubjectAtStart == 1);
}

void Shell::readSeanceTypes()
{
    runtime::during(QStringLiteral("Lecture des types de séance (table « typeseance »)"), [&] {
        const db::Recordset types =
            m_database.Db().open(QStringLiteral("select * from typeseance"));
        for (const db::Row& type : types.rows()) {
            const int reference = type.field(QStringLiteral("Ref")).toInt16();
            runtime::during(
                QStringLiteral("Lecture du type de séance de référence %1").arg(reference), [&] {
                    if (reference < 0 ||
                        reference >= static_cast<int>(m_SeanceTypeShortNames.size())) {
                        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
                    }
                    m_SeanceTypeShortNames.at(static_cast<std::size_t>(reference)) =
                        type.field(QStringLiteral("NomCourt")).toJoinedText();
                });
        }
    });
}

void Shell::listDepartments()
{
    runtime::during(QStringLiteral("Lecture des départements (table « Département »)"), [&] {
        m_form.Combo1.clear();
        const db::Recordset departments =
            m_database.Db().open(QStringLiteral("select * from Département"));
        for (const db::Row& department : departments.rows()) {
            m_form.Combo1.addItem(department.field(QStringLiteral("Ident")).toJoinedText());
        }
    });
}

} // namespace shell
