#pragma once

#include <QString>

class QWidget;

namespace engine
{
class Engine;
}

namespace app
{

/// Asks for a palette by the gallery, over the window: the path of a file, empty when the user
/// cancels. "Défaut", which is no file, is applied on the way; the redraw that follows either
/// answer shows it. `folder` holds the palettes; `filter` is a description and a pattern, separated
/// by "|".
[[nodiscard]] QString choosePalette(engine::Engine& engine, QWidget* window, const QString& folder,
                                    const QString& filter);

} // namespace app
