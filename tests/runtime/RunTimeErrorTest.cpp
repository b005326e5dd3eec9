#include "runtime/RunTimeError.h"

#include "support/RuntimeMatchers.h"

#include <new>
#include <stdexcept>

using namespace runtime;

TEST(ARunTimeError, showsItsNumberAnEmptyLineAndItsText)
{
    EXPECT_EQ(RunTimeError(ErrorNumber::TypeMismatch).message(),
              QStringLiteral("Run-time error '13':\n\nType mismatch"));
}

TEST(ARunTimeError, carriesTheDriversText)
{
    const RunTimeError error(ErrorNumber::DatabaseFailure, QStringLiteral("Gone %1 away"));
    EXPECT_EQ(error.message(), QStringLiteral("Run-time error '-2147467259':\n\nGone %1 away"));
    EXPECT_STREQ(error.what(), "Gone %1 away");
}

TEST(ARunTimeError, keepsTheInnermostActivity)
{
    const auto error = test::errorOf([] {
        during(QStringLiteral("Ouverture"), [] {
            during(QStringLiteral("Lecture de « x »"),
                   [] { throw RunTimeError(ErrorNumber::Overflow); });
        });
    });
    EXPECT_EQ(error.message(),
              QStringLiteral("Run-time error '6':\n\nOverflow\n\nLecture de « x »"));
}

TEST(ARunTimeError, tellsThePlaceBehindTheActivity)
{
    RunTimeError error(ErrorNumber::Overflow);
    error.addPlace(QStringLiteral("Salle « A1 »"));
    EXPECT_EQ(error.activity(), QStringLiteral("Salle « A1 »"));
    RunTimeError another(ErrorNumber::Overflow);
    another.addActivity(QStringLiteral("Lecture de « x »"));
    another.addPlace(QStringLiteral("Salle « A1 »"));
    EXPECT_EQ(another.activity(), QStringLiteral("Lecture de « x »\nSalle « A1 »"));
}

TEST(ARunTimeError, hasThePlatformsTextForEveryNumberThatIsNotTheDatabases)
{
    EXPECT_EQ(platformErrorText(ErrorNumber::InvalidProcedureCall),
              QStringLiteral("Invalid procedure call or argument"));
    EXPECT_EQ(platformErrorText(ErrorNumber::SubscriptOutOfRange),
              QStringLiteral("Subscript out of range"));
    EXPECT_EQ(platformErrorText(ErrorNumber::FileNotFound), QStringLiteral("File not found"));
    EXPECT_EQ(platformErrorText(ErrorNumber::PathFileAccess),
              QStringLiteral("Path/File access error"));
    EXPECT_EQ(platformErrorText(ErrorNumber::InvalidFileFormat),
              QStringLiteral("Invalid file format"));
    EXPECT_EQ(platformErrorText(ErrorNumber::InvalidUseOfNull),
              QStringLiteral("Invalid use of Null"));
    EXPECT_EQ(platformErrorText(ErrorNumber::ItemNotFound),
              QStringLiteral("Item cannot be found in the collection corresponding to the "
                             "requested name or ordinal."));
    EXPECT_EQ(platformErrorText(ErrorNumber::StatementRefused), QString());
}

TEST(During, returnsWhatTheActionReturns)
{
    EXPECT_EQ(during(QStringLiteral("Calcul"), [] { return 7; }), 7);
}

TEST(SkipOnError, tellsWhetherTheStepSucceeded)
{
    EXPECT_TRUE(skipOnError([] {}));
    EXPECT_FALSE(skipOnError([] { throw RunTimeError(ErrorNumber::Overflow); }));
}

TEST(SkipOnError, letsEveryOtherExceptionThrough)
{
    EXPECT_THROW(skipOnError([] { throw 1; }), int);
}

TEST(FaultInFlight, isTheRunTimeErrorItself)
{
    try {
        RunTimeError error(ErrorNumber::TypeMismatch);
        error.addActivity("Lecture");
        throw error;
    } catch (...) {
        const RunTimeError told = runtime::faultInFlight();
        EXPECT_EQ(told.number(), ErrorNumber::TypeMismatch);
        EXPECT_EQ(told.activity(), "Lecture");
    }
}

TEST(FaultInFlight, namesWhatNobodyExpects)
{
    try {
        throw std::out_of_range("no such row");
    } catch (...) {
        const RunTimeError told = runtime::faultInFlight();
        EXPECT_EQ(told.number(), ErrorNumber::InternalError);
        EXPECT_EQ(told.text(), "Internal error");
        EXPECT_EQ(told.activity(), "Faute inattendue du programme : no such row");
    }
    try {
        throw 7; // NOLINT: whatever a library throws
    } catch (...) {
        EXPECT_EQ(runtime::faultInFlight().activity(), "Faute inattendue du programme");
    }
}

TEST(FaultInFlight, saysWhenMemoryIsShort)
{
    try {
        throw std::bad_alloc();
    } catch (...) {
        const RunTimeError told = runtime::faultInFlight();
        EXPECT_EQ(told.number(), ErrorNumber::OutOfMemory);
        EXPECT_EQ(told.text(), "Out of memory");
    }
}

TEST(ARunTimeError, isExplainedByItsNumberUnlessItIsTold)
{
    RunTimeError error(ErrorNumber::FileNotFound);
    EXPECT_EQ(error.explanation(), "Un fichier manque.");
    error.explain("la base « x » est fermée");
    EXPECT_EQ(error.explanation(), "La base « x » est fermée.");
}

TEST(ARunTimeError, explainsEachNumberInASentence)
{
    QStringList sentences;
    for (const ErrorNumber number :
         {ErrorNumber::InvalidProcedureCall, ErrorNumber::Overflow, ErrorNumber::OutOfMemory,
          ErrorNumber::SubscriptOutOfRange, ErrorNumber::TypeMismatch, ErrorNumber::InternalError,
          ErrorNumber::FileNotFound, ErrorNumber::PathFileAccess, ErrorNumber::InvalidUseOfNull,
          ErrorNumber::InvalidFileFormat, ErrorNumber::PrinterError, ErrorNumber::ItemNotFound,
          ErrorNumber::DatabaseFailure, ErrorNumber::StatementRefused, ErrorNumber::TableMissing}) {
        sentences << explanationOf(number);
        EXPECT_TRUE(sentences.last().endsWith('.')) << sentences.last().toStdString();
    }
    EXPECT_EQ(sentences.removeDuplicates(), 0);
}

TEST(ARunTimeError, showsTheBeginningAndTheEndOfALongValue)
{
    RunTimeError error(ErrorNumber::TypeMismatch);
    error.addActivity("Lecture de « " + QString(65536, 'x') + " », salle « A1 »");
    EXPECT_EQ(error.activity().size(), 600);
    EXPECT_TRUE(error.activity().startsWith("Lecture de « xxxx"));
    EXPECT_TRUE(error.activity().contains("x … x"));
    EXPECT_TRUE(error.activity().endsWith("x », salle « A1 »"));
    EXPECT_EQ(shortened(QString(600, 'x')), QString(600, 'x'));
}

TEST(ARunTimeError, showsTheFirstLinesOfMany)
{
    EXPECT_EQ(shortened(QString("a\n").repeated(11) + "b"), QString("a\n").repeated(11) + "b");
    EXPECT_EQ(shortened(QString("a\n").repeated(12) + "b"), QString("a\n").repeated(11) + "…");
}
