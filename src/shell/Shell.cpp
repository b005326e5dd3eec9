#include "shell/Shell.h"

#include "context/AxisLabels.h"
#include "plan/RoomRows.h"
#include "runtime/Numbers.h"

#include <utility>

namespace shell
{
namespace
{

// Twips between the totals line and the window's inner bottom once the window is active.
constexpr int kTotalsMargin = 470;

QString placementKey()
{
    return QStringLiteral("Place");
}

} // namespace

Shell::Shell(Settings settings, engine::Surroundings surroundings)
    : m_settings(std::move(settings)), m_folders{surroundings.applicationFolder,
                                                 surroundings.systemFolder},
      m_engine(std::move(surroundings))
{
}

void Shell::Form_Activate()
{
    form().visible = true;
    m_engine.refreshPlan();
    context::placeTotals(form(), kTotalsMargin);
    MatchControlBackgrounds();
}

void Shell::layOut(int scaleWidth, int scaleHeight)
{
    form().scaleWidth = scaleWidth;
    form().scaleHeight = scaleHeight;
    context::placeTotals(form(), kTotalsMargin);
    m_engine.placeRoomRows();
}

void Shell::Form_Resize()
{
    m_engine.placeRoomRows();
    MatchControlBackgrounds();
}

void Shell::fitPicture()
{
    layOut(plan::widthWithPlaces(form(), context::axisEnd(form(), m_engine.state().slots)),
           form().scaleHeight);
}

void Shell::Form_KeyDown(int keyCode)
{
    if (keyCode == kKeyF2) {
        m_engine.togglePaleColors();
    }
}

void Shell::Form_Unload()
{
    if (!std::exchange(m_loaded, false)) {
        return;
    }
    m_engine.abandonRefresh();
    form().visible = false;
    m_engine.closeDatabase();
    writeOptions();
}

void Shell::saveOptions()
{
    if (m_loaded) {
        writeOptions();
    }
}

QString Shell::windowPlacement() const
{
    return m_settings.get(placementKey(), QString(), Settings::Section::Window);
}

void Shell::saveWindowPlacement(const QString& placement)
{
    runtime::skipOnError(
        [&] { m_settings.save(placementKey(), placement, Settings::Section::Window); });
}

void Shell::writeOptions()
{
    const QString& palette = m_engine.state().colors.PaletteName;
    if (palette != m_PaletteAtStart) {
        m_settings.save(QStringLiteral("Palette"), palette);
        m_PaletteAtStart = palette;
    }
    if (context::linesPerPage(form()) != m_RoomsPerPage) {
        m_settings.save(QStringLiteral("Total_L_P"), form().Total_L_P.text());
        m_RoomsPerPage = runtime::nearestInt16(context::linesPerPage(form()));
    }
    if (form().EveryRoom.isChecked() != m_EveryRoomAtStart) {
        m_EveryRoomAtStart = form().EveryRoom.isChecked();
        m_settings.save(QStringLiteral("Toutes_Salles"),
                        m_EveryRoomAtStart ? QStringLiteral("True") : QStringLiteral("False"));
    }
    saveOption({QStringLiteral("ChkEnseignant"), form().XOpEns, m_ShowTeacherAtStart});
    saveOption({QStringLiteral("ChkClasse"), form().XOpCl, m_ShowClassAtStart});
    saveOption({QStringLiteral("ChkMatiere"), form().XpMat, m_ShowSubjectAtStart});
}

void Shell::saveOption(SavedOption option)
{
    if (option.box.isChecked() != option.atStart) {
        m_settings.save(option.key, QString::number(option.box.isChecked() ? 1 : 0));
        option.atStart = option.box.isChecked();
    }
}

void Shell::Label20_Click()
{
    form().setFontName(form().Label20.font.name);
    m_engine.refreshPlan();
}

void Shell::MatchControlBackgrounds()
{
    ++form().colorerFocusRequests;
}

QDate Shell::fileDate() const
{
    const context::ViewedPeriod& period = m_engine.state().period;
    const bool examWeek =
        form().OpExam().isSelected() && period.examWeeks.firstDays.front().isValid();
    const bool dated = form().DTPicker1.visible || m_dateAskedFor || examWeek;
    return dated ? period.shownDate(form()) : QDate();
}

} // namespace shell
