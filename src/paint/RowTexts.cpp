#include "paint/RowTexts.h"

#include "plan/BoxLines.h"

#include <algorithm>

namespace paint
{
namespace
{

// Lines may stand as close as this: letters of two lines still do not touch.
constexpr double kLeading = 0.9;

/// Lines that there is no room for go on in one another, where all is readable then.
TextSetting fit(const RowText& each, int format, const TextRuler& ruler, int largest)
{
    const TextSetting written = fitBoxText(each.area, each.text, format, ruler, largest, kLeading);
    if (written.fits || written.lines.size() < 2) {
        return written;
    }
    const QString joined = plan::writtenLines(each.text).join(u' ');
    const TextSetting flowing = fitBoxText(each.area, joined, format, ruler, largest, kLeading);
    return flowing.fits ? flowing : written;
}

} // namespace

std::vector<TextSetting> fitRowTexts(const std::vector<RowText>& texts, int format,
                                     const TextRuler& ruler)
{
    int common = ruler.font().pixelSize();
    std::vector<TextSetting> settings;
    settings.reserve(texts.size());
    for (const RowText& each : texts) {
        settings.push_back(fit(each, format, ruler, common));
        const TextSetting& found = settings.back();
        if (!found.lines.isEmpty() && found.pixels < common) {
            common = std::max(found.pixels, std::min(common, kSmallestRowText));
        }
    }
    for (std::size_t index = 0; index < texts.size(); ++index) {
        if (settings[index].pixels > common) {
            settings[index] = fit(texts[index], format, ruler, common);
        }
    }
    return settings;
}

} // namespace paint
