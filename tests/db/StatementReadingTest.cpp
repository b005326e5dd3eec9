#include "db/StatementReading.h"

#include <gtest/gtest.h>

using namespace db;

TEST(AStatement, isCertainlyRefusedWhereALiteralNeverEnds)
{
    const auto isRefused = [](const QString& name) {
        return isCertainlyRefused("Select * from etudiant WHERE Classe='" + name + "'", {name});
    };
    for (const char* refused : {"L2 d'or", "L2 d'Or blanc", "Amphi'", "A'1", "H' + J", "D'", "'",
                                "d'un an d'or d'été", "l''or d'or"}) {
        EXPECT_TRUE(isRefused(refused)) << refused;
    }
    for (const char* asked : {"A1",
                              "",
                              "D''Or",
                              "x' OR '1'='1",
                              "l'or 'd",
                              "B'--",
                              "C' union select 'a",
                              "C'/*",
                              "d'or (2)",
                              "d'or;",
                              "E\\'or",
                              "F' or \"a",
                              "G' or `a",
                              "H' or [a",
                              "I' or {a",
                              "J'#",
                              "K' or ?",
                              "L' in 'x",
                              "M' collate 'y",
                              "N' or 'a' like 'b"}) {
        EXPECT_FALSE(isRefused(asked)) << asked;
    }
}

TEST(AStatement, isCertainlyRefusedWhereAWordFollowsALiteral)
{
    const auto isRefused = [](const QString& room) {
        const QString sql = "SELECT * FROM emplois WHERE ( Salle = '" + room + "' or Salle2 ='" +
                            room + "' ) and  Seance = '1' and Tranche =3";
        return isCertainlyRefused(sql, {room, "1", "3"});
    };
    for (const char* refused : {"Salle d'or", "d'or", "Amphi'", "A'1"}) {
        EXPECT_TRUE(isRefused(refused)) << refused;
    }
    for (const char* asked :
         {"A101", "x' OR '1'='1", "l'or d'or", "D''Or", "' or '", "B' order by 'c' desc, '",
          "C' or interval '1' day or '", "D' into outfile 'e' fields '"}) {
        EXPECT_FALSE(isRefused(asked)) << asked;
    }
}

TEST(AStatement, keepsToItsLiteralsWhereTheseStandWhereTheyCan)
{
    for (const char* sound :
         {"select 1", "Select * from t where a='50% nouveau'",
          "select a='x' as m, (b = 'y%') from t where c in ('1','2%') and d='' limit 1",
          "select t.* from t where a = 'l''or %n' order by b",
          "select case when a='%n' then '1' else '2' end from t",
          "select 'x%' from t union all select '' from u", "update t set a = '1%' where b = '2'"}) {
        EXPECT_TRUE(keepsToItsLiterals(sound, true)) << sound;
    }
    for (const char* broken :
         {"select * from t where a='Salle d'%n'", "select * from t where a='x' d '%n'",
          "select * from t where a='d'50 %n' and b='1'", "select * from t where a='%n",
          "select * from t where a=''%n' and b='1'", "select a%n from t where b='1'",
          "select * from t where a='d'or' or b='%n'"}) {
        EXPECT_FALSE(keepsToItsLiterals(broken, true)) << broken;
    }
    EXPECT_FALSE(keepsToItsLiterals("select * from t where a='x\\' and b='%n'", true));
    EXPECT_TRUE(keepsToItsLiterals("select * from t where a='x\\' and b='%n'", false));
}
