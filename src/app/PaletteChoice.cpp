#include "app/PaletteChoice.h"

#include "app/PaletteGallery.h"
#include "engine/Engine.h"

#include <QFileDialog>

namespace app
{

QString choosePalette(engine::Engine& engine, QWidget* window, const QString& folder,
                      const QString& filter)
{
    const auto chooseFile = [&](QWidget* over) {
        return QFileDialog::getOpenFileName(
            over, QStringLiteral("Choisir une palette"), folder,
            QStringLiteral("Palettes (%1)").arg(filter.section(u'|', 1)));
    };
    PaletteGallery gallery({folder, engine.state().colors.PaletteName, chooseFile}, window);
    if (gallery.exec() != QDialog::Accepted) {
        return {};
    }
    if (gallery.chosen().isEmpty()) {
        engine.useDefaultColors();
    }
    return gallery.chosen();
}

} // namespace app
