#include "app/Mnemonics.h"

#include <QMap>

namespace app
{
namespace
{

/// By control. The upper case is looked for first: "Semaine A" has two letters a.
const QMap<QString, QChar>& letters()
{
    static const QMap<QString, QChar> all{
        {QStringLiteral("Questions"), u'h'},         // Chercher
        {QStringLiteral("CbTranche"), u'P'},         // Période
        {QStringLiteral("OpEns"), u'E'},             // Enseignement
        {QStringLiteral("OpExam"), u'x'},            // Examen
        {QStringLiteral("CbJour"), u'J'},            // Jour
        {QStringLiteral("Check2"), u'D'},            // Date
        {QStringLiteral("OptFixe"), u'T'},           // Toute Semaine
        {QStringLiteral("OptA"), u'A'},              // Semaine A
        {QStringLiteral("OptB"), u'B'},              // Semaine B
        {QStringLiteral("XOpCl"), u'C'},             // Classe
        {QStringLiteral("XOpEns"), u'S'},            // Enseignant, Surveillant
        {QStringLiteral("XpMat"), u'M'},             // Matière
        {QStringLiteral("Chk_Type"), u'y'},          // Type de S.
        {QStringLiteral("cb_Locaux"), u'Z'},         // Zone
        {QStringLiteral("ElemDep"), u'n'},           // Eléments du département
        {QStringLiteral("Chk_Neutre"), u'+'},        // + Eléments Neutres
        {QStringLiteral("Total_L_P"), u'L'},         // Lignes/Page
        {QStringLiteral("EveryRoom"), u'o'},         // Toutes les salles
        {QStringLiteral("Colorer"), u'r'},           // Colorer
        {QStringLiteral("ChkGrille"), u'i'},         // Grille
        {QStringLiteral("Check3"), u'u'},            // S. Groupées
        {QStringLiteral("Chk_Compt"), u'g'},         // Comptage
        {QStringLiteral("Check1"), u'\u00E8'},       // Selon la Matière
        {QStringLiteral("PrintPreview"), u'\u00E7'}, // Aperçu
        {QStringLiteral("Opt_Cap"), u'\u00E9'},      // Imprimer Capacité
    };
    return all;
}

} // namespace

QString withMnemonic(const QString& caption, const QString& control)
{
    QString text = caption;
    text.replace(u'&', QStringLiteral("&&"));
    const QChar letter = letters().value(control);
    if (letter.isNull()) {
        return text;
    }
    const auto exact = text.indexOf(letter);
    const auto at = exact >= 0 ? exact : text.indexOf(letter, 0, Qt::CaseInsensitive);
    return at >= 0 ? text.insert(at, u'&') : text;
}

} // namespace app
