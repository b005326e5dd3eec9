#include "demo/Words.h"

namespace demo
{
namespace
{

/// A list written as one text, its items between semicolons.
QStringList items(const char* text)
{
    return QString::fromUtf8(text).split(';');
}

std::array<QStringList, departmentCount + 1> allSubjects()
{
    return {
        items(
            "Microéconomie;Comptabilité générale*i;Marketing;Droit des affaires;"
            "Statistique descriptive*i;Macroéconomie;Gestion financière;Informatique de gestion*i;"
            "Management;Comptabilité analytique;Histoire de l'économie;Fiscalité"),
        items("Résistance des matériaux*g;Béton armé*g;Topographie*i;Mécanique des sols*g;"
              "Calcul des structures;Matériaux de construction*g;Hydraulique*g;Routes et ouvrages "
              "d'art;"
              "Dessin de bâtiment*i;Charpente métallique;Organisation de chantier;Fondations"),
        items("Circuits électriques*m;Automatique*a;Traitement du signal*i;Machines électriques*m;"
              "Microprocesseurs*a;Réseaux électriques;Télécommunications*a;Capteurs et mesures*a;"
              "Systèmes numériques*a;Commande des systèmes*a;Antennes;Haute tension"),
        items(
            "Construction mécanique*w;Mécanique des fluides*f;Dessin industriel*i;"
            "Transfert de chaleur*f;Fabrication mécanique*w;Métallurgie*w;Moteurs thermiques*f;"
            "Vibrations mécaniques;Conception assistée*i;Turbomachines;Maintenance industrielle*w;"
            "Science des matériaux*f"),
        items(
            "Algorithmique*i;Bases de données*i;Systèmes d'exploitation*i;Théorie de l'information;"
            "Réseaux*i;Programmation objet*i;Architecture des machines*i;Théorie des langages;"
            "Développement web*i;Compilation*i;Intelligence artificielle*i;Génie logiciel"),
        items("Analyse;Algèbre linéaire;Probabilités;Analyse numérique*i;Statistique*i;"
              "Calcul différentiel;Topologie;Recherche opérationnelle*i;Géométrie;"
              "Logique mathématique;Optimisation*i;Théorie des nombres"),
        items(
            "Mécanique du point*p;Thermodynamique*p;Chimie générale*c;Optique*p;"
            "Ondes et vibrations*p;Champs électromagnétiques;Chimie organique*c;Cristallographie*p;"
            "Acoustique*p;Physique quantique;Physique statistique;Physique nucléaire"),
        items(
            "Biologie cellulaire*b;Biochimie*b;Botanique*b;Zoologie*b;Microbiologie*b;Génétique*b;"
            "Physiologie végétale*b;Géologie*b;Physiologie animale*b;Immunologie*b;Parasitologie*b;"
            "Bioinformatique*i"),
        items("Anglais;Techniques d'expression;Anglais scientifique;Français;Terminologie"),
    };
}

} // namespace

const std::array<QString, departmentCount>& departmentNames()
{
    static const std::array<QString, departmentCount> names = {"ECO",  "GC",   "GE",   "GM",
                                                               "INFO", "MATH", "PHYS", "SNV"};
    return names;
}

const QStringList& subjectWords(int department)
{
    static const std::array<QStringList, departmentCount + 1> words = allSubjects();
    return words.at(static_cast<std::size_t>(department));
}

const QStringList& familyNames()
{
    static const QStringList names = items(
        "Benali;Haddad;Martin;Mansouri;Khelifi;Traoré;Bouzid;Belkacem;Rousseau;Chérif;Meziane;"
        "Hamidi;Diallo;Saïdi;Zerrouki;Lefèvre;Boudiaf;Lounis;Amrani;Koné;Toumi;Ferhat;Fontaine;"
        "Rahmani;Slimani;Kaci;Ndiaye;Yahiaoui;Moreau;Brahimi;Djebbar;Ouali;Sissoko;Tahar;Girard;"
        "Bensalem;Cissé;Mokrani;Hadj Ali;Laurent;Boukhari;Naceri;Ouattara;Guerfi;Chevalier;Larbi;"
        "Medjahed;Fofana;Aït Ahmed;Renaud;Zidane;Bouaziz;Sarr;Hocine;Perrin;Attia;Kadri;Keita;"
        "Messaoudi;Garnier;Touati;Berrada;Sow;Alaoui;Marchand;Cherkaoui;Idrissi;Diop;Bennani;"
        "Vidal;Tazi;Filali;Camara;Lahlou;Meunier;Skali;Jlassi;Touré;Trabelsi;Colin;Gharbi;Mejri;"
        "Bah;Ayari;Dupuis;Hammami;Dridi;Coulibaly;Chaabane;Masson;Ziani;Ghazi;Faye;Hamdani;Leroux;"
        "Seghir;Nouri;Konaté;Rezgui;Barbier;Othmani;Sellami;Barry;Maalej;Aubert;Ben Youssef;"
        "Abidi;Sylla;Jaziri;Caron;Riahi;Kateb;Gueye;Oukil;Brunet;Semmar;Tebbal;Mbaye;Ifri;Roy;"
        "Djaout;Feraoun;Ba;Hakimi;Gauthier;Bensaïd;Mahi;Seck;Cadi;Blanchard;Laïb;Mekki");
    return names;
}

const QStringList& firstNames()
{
    static const QStringList names =
        items("Amine;Lina;Yacine;Sarah;Karim;Inès;Mehdi;Nour;Aminata;Hugo;Yasmine;Bilal;Camille;"
              "Sofiane;Meriem;Ibrahim;Léa;Rayan;Khadija;Walid;Chloé;Oussama;Fatou;Nadia;Lucas;"
              "Houda;Moussa;Imane;Zakaria;Manon;Samir;Salma;Anis;Awa;Hichem;Emma;Nassim;Asma;"
              "Omar;Rania;Théo;Ilyes;Mariam;Farid;Dounia;Nicolas;Ryma;Adel;Kenza;Louis;Selma;"
              "Ismaïl;Zineb;Abdou;Clara;Tarek;Hanane;Younes;Maya;Seydou;Wissam;Élodie;Riad;Lamia;"
              "Antoine;Feriel;Cheikh;Sabrina;Marouane;Jeanne;Hamza;Amel;Paul;Chaïma;Idriss;Anaïs");
    return names;
}

const QStringList& amphiNames()
{
    static const QStringList names =
        items("A;B;C;D;Ibn Khaldoun;Marie Curie;Al Khwarizmi;Avicenne;Pascal;Ibn Battouta;"
              "Averroès;Kateb Yacine;Sophie Germain;Al Idrissi;Descartes;Assia Djebar;Pasteur;"
              "Cheikh Anta Diop;Galilée;Omar Khayyam;Lavoisier;Fatima Mernissi;Turing;Al Biruni;"
              "Euler;Ibn Badis;Newton;Aimé Césaire;Fourier;Jean Perrin;Gauss;Laplace");
    return names;
}

const std::array<QString, 16>& typeNames()
{
    static const std::array<QString, 16> names = {"C",    "TD",  "TP",   "CI",  "Sém",  "Conf",
                                                  "Proj", "Tut", "Lang", "Atl", "Sout", "Vis",
                                                  "EF",   "CC",  "Ratt", "Div"};
    return names;
}

} // namespace demo
