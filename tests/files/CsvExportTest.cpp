#include "files/CsvExport.h"

#include "shell/ShellDesk.h"

using namespace test;
using files::csvLine;

namespace
{

class CsvExport : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    /// The lines of the file after these arguments, without its mark and its last line end.
    QStringList linesAfter(const QStringList& arguments)
    {
        desk.play(arguments);
        const QByteArray bytes = files::planAsCsv(desk.document());
        EXPECT_TRUE(bytes.startsWith("\xef\xbb\xbf"
                                     "Date"));
        QString text = QString::fromUtf8(bytes); // which takes the mark away
        EXPECT_TRUE(text.endsWith("\r\n"));
        text.chop(2);
        return text.split("\r\n");
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(CsvExport);

/// The cells that a spreadsheet makes of a line. Where quotes count, one at the beginning of a cell
/// encloses it up to the next that is not doubled; what follows belongs to the cell as it stands.
QStringList piecesOf(const QString& line, QChar separator, bool quotesCount)
{
    QStringList pieces{QString()};
    bool atStart = true;
    bool enclosed = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (enclosed && c == u'"' && i + 1 < line.size() && line.at(i + 1) == u'"') {
            pieces.last() += line.at(++i);
        } else if (quotesCount && c == u'"' && (atStart || enclosed)) {
            enclosed = !enclosed;
        } else if (c == separator && !enclosed) {
            pieces << QString();
            atStart = true;
            continue;
        } else {
            pieces.last() += c;
        }
        atStart = false;
    }
    return pieces;
}

/// A sign alone is none, and neither is the hyphen of initials.
bool isFormula(const QString& cell)
{
    return cell.size() > 1 && QStringLiteral("=+-@\t\r").contains(cell.front()) && cell != "-P";
}

} // namespace

TEST_P(CsvExport, namesItsColumns)
{
    EXPECT_EQ(
        linesAfter({"--day", "0"}).constFirst(),
        "Date;Jour;Période;Salle;Places;Séance;Début;Durée (min);Texte;Classes;Étudiants;"
        "Capacité;Enseignant;Matière;Rattrapage;Dépassement;Classe absente;Étudiants absents");
}

TEST_P(CsvExport, holdsOneLinePerBox)
{
    // Monday, 17 March 2025: A2, B1, B2 and C1 (week A and week B together) hold one box each.
    const QStringList lines = linesAfter({"--date", "2025-03-17"});
    ASSERT_EQ(lines.size(), 1 + 4);
    EXPECT_EQ(lines[1], "17/03/2025;Lundi;Printemps;A2;40;1;8h30;90;"
                        "G1, Dupont/Durand, [Algèbre];G1;3;25;Dupont;Algèbre;"
                        "non;non;oui;non");
    EXPECT_EQ(lines[2].section(';', 3, 7), "B1;100;3;14h00;180");
    EXPECT_EQ(lines[2].section(';', 9, 11), "G2, G3;2;55");
    EXPECT_EQ(lines[3].section(';', 3, 7), "B2;20;2;10h15;90");
    EXPECT_EQ(lines[3].section(';', 15, 15), "oui"); // G2 is 45 strong, B2 has 20 places
}

TEST_P(CsvExport, saysWhatIsAMakeUp)
{
    const QStringList lines = linesAfter({"--makeup", "--date", "2025-03-17"});
    ASSERT_EQ(lines.size(), 1 + 5);
    EXPECT_EQ(lines[1].section(';', 14, 14), "non");
    EXPECT_EQ(lines[2].section(';', 3, 6), "A2;40;2;10h15");
    EXPECT_EQ(lines[2].section(';', 14, 14), "oui");
}

TEST_P(CsvExport, tellsNoDateThatOnlyTheClockKnows)
{
    EXPECT_EQ(linesAfter({"--day", "0"}).at(1).section(';', 0, 2), ";Lundi;Printemps");
    EXPECT_EQ(linesAfter({"--day", "0", "--makeup"}).at(1).section(';', 0, 2),
              "17/03/2025;Lundi;Printemps");
    // The exam week is the database's, whatever the day that the plan is made on.
    EXPECT_EQ(linesAfter({"--mode", "exam", "--day", "0"}).at(1).section(';', 0, 2),
              "09/06/2025;Lundi;Printemps");
}

TEST_P(CsvExport, hasNoLinesForAnEmptyPlan)
{
    EXPECT_EQ(linesAfter({"--day", "5"}).size(), 1);
}

TEST(CsvLine, quotesWhatNeedsIt)
{
    EXPECT_EQ(csvLine({"a", "b c", ""}), "a;b c;\r\n");
    EXPECT_EQ(csvLine({"a;b", "say \"no\"", "x\ny", "x\ry"}),
              "\"a;b\";\"say \"\"no\"\"\";\"x\ny\";\"x\ry\"\r\n");
}

TEST(CsvLine, makesFormulasHarmless)
{
    EXPECT_EQ(csvLine({"=1+1", "+33", "-5", "@SUM(A1)"}), "'=1+1;'+33;'-5;'@SUM(A1)\r\n");
    EXPECT_EQ(csvLine({"\tx", "\rx", "＝1", "=A1;\"x\""}),
              "'\tx;\"'\rx\";'＝1;\"'=A1;\"\"x\"\"\"\r\n");
    EXPECT_EQ(csvLine({"\t=1", "'=1"}), "'\t'=1;'=1\r\n");
}

TEST(CsvLine, makesWhatWouldBeAFormulaBehindAnotherSeparatorHarmlessToo)
{
    EXPECT_EQ(csvLine({"a,=1", "b\t+1", "c|-1", "d @1", "e/=1", "f:=1", "g(=1"}),
              "a,'=1;b\t'+1;c|'-1;d '@1;e/'=1;f:'=1;g('=1\r\n");
    EXPECT_EQ(csvLine({"a;=1", "b\n=1", "c\"=1", " -"}),
              "\"a;'=1\";\"b\n'=1\";\"c\"\"'=1\"; '-\r\n");
    EXPECT_EQ(csvLine({"A.=1", "A.-1", "A.-B1", "=-1"}), "A.'=1;A.'-1;A.'-B1;'='-1\r\n");
}

TEST(CsvLine, leavesNamesAsTheyAre)
{
    const QString names = "G1, Dupont/Durand, [Algèbre];J.-P. Martin;Jean-Pierre;G1 - G2;"
                          "[Chimie] = G3;Amphi 1+2;a@b;A--B;17/03/2025;8h30;l’été";
    EXPECT_EQ(csvLine(names.split(u';')), names + "\r\n");
}

TEST(CsvLine, hasNoFormulaWhateverTheSeparator)
{
    QString separators = QString(QChar(u'\t')) + QChar(QChar::Nbsp) + "«»“”’–—·§€°";
    for (char16_t c = u' '; c < 0x7f; ++c) {
        // No letter or digit ends a cell; and no apostrophe where it is what makes a text of one.
        if (!QChar(c).isLetterOrNumber() && c != u'\'') {
            separators += QChar(c);
        }
    }
    QStringList cells;
    for (const QChar before : separators) {
        for (const QChar sign : QStringLiteral("=+-@\t\r")) {
            for (const char* behind : {"1", "A1+1", " A1", "P.", "\"", ""}) {
                cells << QString("x") + before + sign + behind;
                cells << QString(before) + sign + behind;
                cells << QString("x,\"") + before + sign + behind + "\"";
            }
        }
    }
    for (const QString& cell : cells) {
        const QString line = csvLine({"17/03/2025", cell, cell}).chopped(2);
        for (const QChar separator : separators) {
            for (const bool quotesCount : {false, true}) {
                for (const QString& piece : piecesOf(line, separator, quotesCount)) {
                    EXPECT_FALSE(isFormula(piece))
                        << line.toStdString() << " at " << QString(separator).toStdString() << ": "
                        << piece.toStdString();
                }
            }
        }
    }
}
