// The start-up sequence of the program. Its order is part of what it does: later steps read what
// earlier ones have set, and the first one that fails ends the program.

#include "shell/Shell.h"

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
    m_SkinOn = isOn(QStringLiteral("SKin")); // no skin is attached: the platform's look serves
    listExamWeeks();
    m_engine.startAppearance();
    form().Lab_Ver.caption = QStringLiteral(TEMPORA_VERSION);
    loadPalette();
    readDisplayOptions();
    readRoomsPerPage();
    readEveryRoom();
    m_engine.loadEstablishment({m_choice.nameInMessages(), m_choice.strings.ConnectString,
                                setting(QStringLiteral("Tranche"), QStringLiteral("1"))});
    m_engine.loadSlots();
    m_engine.placeRoomRows();
    if (converted(QStringLiteral("Grille_Visible"),
                  setting(QStringLiteral("Grille_Visible"), QStringLiteral("True")),
                  runtime::toBoolean)) {
        form().ChkGrille.setChecked(true);
    }
    m_engine.fillRoomPage();
    m_engine.showCurrentWeek();
    if (isOn(QStringLiteral("Ouvrir_Aujourdhui"))) {
        m_engine.openOnToday();
    }
    m_engine.readSeanceTypes();
    m_engine.listDepartments();
    m_loaded = true;
}

void Shell::chooseDatabase()
{
    const bool useMySql = isOn(QStringLiteral("Mysql"));
    const bool doublesQuotes = isOn(QStringLiteral("Apostrophes"));
    m_engine.chooseDatabase(useMySql, doublesQuotes);
    m_choice = shell::chooseDatabase(m_settings, useMySql, m_folders);
}

QDate Shell::weekA() const
{
    const QString key = QStringLiteral("SemaineA");
    const QString text = setting(key, QString());
    return text.isEmpty() ? QDate() : converted(key, text, [](const QString& date) {
        const QDate day = QDate::fromString(date, Qt::ISODate);
        if (!day.isValid()) {
            throw runtime::RunTimeError(runtime::ErrorNumber::TypeMismatch);
        }
        return day;
    });
}

void Shell::listExamWeeks()
{
    form::List& weeks = form().Combo10;
    weeks.clear();
    weeks.addItem(QStringLiteral("1ère Sem. d'Examen"));
    weeks.addItem(QStringLiteral("2ème Sem. d'Examen"));
    weeks.addItem(QStringLiteral("Sem. de Contrôle"));
    weeks.setListIndex(0);
}

void Shell::loadPalette()
{
    m_PaletteAtStart = setting(QStringLiteral("Palette"), QString());
    if (!m_PaletteAtStart.isEmpty()) {
        m_engine.loadPalette(m_PaletteAtStart);
    }
}

bool Shell::readOption(const QString& key) const
{
    return converted(key, setting(key, QStringLiteral("1")), runtime::toInt16) == 1;
}

bool Shell::isOn(const QString& key) const
{
    return converted(key, setting(key, QStringLiteral("False")), runtime::toBoolean);
}

void Shell::readEveryRoom()
{
    m_EveryRoomAtStart = isOn(QStringLiteral("Toutes_Salles"));
    form().EveryRoom.setChecked(m_EveryRoomAtStart);
}

void Shell::readDisplayOptions()
{
    m_ShowTeacherAtStart = readOption(QStringLiteral("ChkEnseignant"));
    m_ShowClassAtStart = readOption(QStringLiteral("ChkClasse"));
    m_ShowSubjectAtStart = readOption(QStringLiteral("ChkMatiere"));
    form().XOpEns.setChecked(m_ShowTeacherAtStart);
    form().XOpCl.setChecked(m_ShowClassAtStart);
    form().XpMat.setChecked(m_ShowSubjectAtStart);
}

/// The box shows 1 at least and 29 at most; what the settings ask for beyond that counts as these.
void Shell::readRoomsPerPage()
{
    const QString lines = setting(QStringLiteral("Total_L_P"), QStringLiteral("19"));
    const std::int16_t number = converted(QStringLiteral("Total_L_P"), lines, runtime::toInt16);
    form().Total_L_P.setText(number < 1 ? QStringLiteral("1") : lines);
    m_RoomsPerPage = runtime::toInt16(form().Total_L_P.text());
}

} // namespace shell
