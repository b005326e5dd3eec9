#include "app/WindowStyle.h"

#include "app/PlanPicture.h"

namespace app
{

QString windowStyleSheet()
{
    return QStringLiteral(R"(
* { font-family: "Segoe UI", "Liberation Sans", Arial, sans-serif; font-size: 12px; }
QMainWindow { background: %1; }
#HeaderBand { background: #1f3a5f; }
#HeaderBand QLabel { color: #ffffff; }
#HeaderBand QLabel[role="title"] { font-size: 20px; font-weight: bold; }
#HeaderBand QLabel[role="name"] { font-size: 14px; font-weight: bold; }
#HeaderBand QLabel[role="note"] { color: #c9d6e8; }
#HeaderBand QToolButton { color: #ffffff; border: 1px solid #c9d6e8; border-radius: 4px;
                         padding: 4px 10px; }
#HeaderBand QToolButton:hover { background: #33537f; }
#FaultBar { background: #a81c1c; }
#FaultBar QLabel { color: #ffffff; font-weight: bold; }
#FaultBar QToolButton { color: #ffffff; border: 1px solid #ffffff; border-radius: 4px;
                        padding: 3px 10px; font-weight: bold; }
#FaultBar QToolButton:hover, #FaultBar QToolButton:focus { background: #c94a4a; }
#Picture1 { background: #eef1f6; }
#HeaderBand QToolButton::menu-indicator { image: none; }
#AnswerStatus { color: #48597a; }
#AnswerStatus[warning="true"] { color: #a81c1c; font-weight: bold; }
QLabel[role="strong"] { font-weight: bold; }
QGroupBox { border: 1px solid #cfd6e2; border-radius: 4px; margin-top: 9px;
            background: #fafbfd; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 8px;
                   padding: 0 3px; color: #48597a; background: #fafbfd; }
QStatusBar { background: #eef1f6; color: #48597a; }
QStatusBar QLabel { color: #48597a; padding: 0 6px; }
#FirstPage { color: #1d5fa8; border: none; text-decoration: underline; }
#FirstPage:focus { border: 1px solid #1d5fa8; border-radius: 3px; }
QStatusBar::item { border: none; }
QToolTip { font-size: 12px; }
)")
        .arg(PlanPicture::kBandFill.name());
}

} // namespace app
