#include "paint/RowTexts.h"

#include <algorithm>

namespace paint
{
namespace
{

// Lines may stand as close as this: letters of two lines still do not touch.
constexpr double kLeading = 0.9;

} // namespace

std::vector<TextSetting> fitRowTexts(const std::vector<RowText>& texts, int format,
                                     const TextRuler& ruler)
{
    int common = ruler.font().pixelSize();
    const auto fit = [&](const RowText& each) {
        return fitBoxText(each.area, each.text, format, ruler, common, kLeading);
    };
    std::vector<TextSetting> settings;
    settings.reserve(texts.size());
    for (const RowText& each : texts) {
        settings.push_back(fit(each));
        const TextSetting& found = settings.back();
        if (!found.lines.isEmpty() && found.pixels < common) {
            common = std::max(found.pixels, std::min(common, kSmallestRowText));
        }
    }
    for (std::size_t index = 0; index < texts.size(); ++index) {
        if (settings[index].pixels > common) {
            settings[index] = fit(texts[index]);
        }
    }
    return settings;
}

} // namespace paint
