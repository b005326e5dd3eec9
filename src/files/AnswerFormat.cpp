#include "files/AnswerFormat.h"

#include "files/AnswerCsv.h"
#include "files/AnswerHtml.h"
#include "files/AnswerIcs.h"
#include "files/AnswerJson.h"
#include "files/AnswerPdf.h"
#include "files/AnswerWeekHtml.h"
#include "files/AnswerWeekPdf.h"

#include <QFileInfo>
#include <algorithm>
#include <array>

namespace files
{

const std::vector<AnswerFormat>& answerFormats(AnswerKind kind)
{
    static const AnswerFormat json{QStringLiteral("json"), answerAsJson};
    static const AnswerFormat csv{QStringLiteral("csv"), answerAsCsv};
    static const AnswerFormat calendar{QStringLiteral("ics"), answerAsIcs, true};
    static const std::vector<AnswerFormat> week{json,
                                                csv,
                                                {QStringLiteral("html"), weekAsHtml},
                                                {QStringLiteral("pdf"), weekAsPdf},
                                                calendar};
    static const std::vector<AnswerFormat> others{
        json, csv, {QStringLiteral("html"), answerAsHtml}, {QStringLiteral("pdf"), answerAsPdf}};
    return kind == AnswerKind::Week ? week : others;
}

const AnswerFormat* answerFormatOf(AnswerKind kind, const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    const auto& formats = answerFormats(kind);
    const auto found =
        std::find_if(formats.begin(), formats.end(),
                     [&](const AnswerFormat& format) { return format.ending == ending; });
    return found != formats.end() ? &*found : nullptr;
}

QStringList answerEndings(AnswerKind kind)
{
    QStringList endings;
    for (const AnswerFormat& format : answerFormats(kind)) {
        endings << format.ending;
    }
    return endings;
}

} // namespace files
