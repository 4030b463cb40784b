// What gestures are drawn from: the texts that are typed, and how often which gesture, menu entry
// and button comes.
#pragma once

#include "monde.h"

#include <map>

namespace jumeaux {

using Textes = std::vector<const char*>;

inline const Textes kFatras = {
    "abc",     "12/34",    "ÀÉÎ",
    "€uro",    "ERREUR",   "\\",
    "   ",     "*?<>",     "'\",",
    "0",       "F5ABC",    "jean-PIERRE",
    "é\u0301", "Ω漢",      "-1",
    "975",     "&Suivant", "un texte bien plus long que toutes les boîtes de la carte"};

inline std::string TexteDeSaisie(Alea& a, int boite) {
    static const std::map<int, Textes> kPropres = {
        {7, {"59", "599", "57", "59+", "5", ""}},
        {8, {"59", "599", "55", "59+20", ""}},
        {9, {"Lyon", "Foix", "Saint-Étienne", "Nîmes", "Århus", ""}},
        {11, {"75", "2A", "1", "974", "99", "3", "09", ""}},
        {12, {"jean-pierre", "éric", "ANNE", "René", ""}},
        {13, {"beam 3 el", "été", "QRP", ""}},
        {14, {"OK", "", "", "01/02/03"}},
        {15, {"OK", "", "02/02/26"}},
        {17, {"F6AJA", "DJ2MX", "", ""}}};
    static const Textes kDates = {"31/02/24", "00/00/00", "1/1/1", "01.05.02", "29/02/24", ""};
    static const Textes kHeures = {"25:61", "12.30", "9:05", "24:00", "1230", ""};
    static const Textes kFaux = {"ZZ99ZZ", "JN18", "XX", "JN18E", "jn18eu", "SS00AA"};
    if (a.Un(12))
        return a.Parmi(kFatras);
    switch (boite) {
    case 1:
        return a.Un(4)
                   ? "F" + std::to_string(a.Sous(10)) + "A" + static_cast<char>('A' + a.Sous(26))
                   : a.Parmi(kIndicatifs);
    case 2:
        return a.Un(6) ? a.Parmi(kDates) : UneDate(a);
    case 3:
    case 4:
        return a.Un(6) ? a.Parmi(kHeures) : UneHeure(a);
    case 5:
        return a.Un(8) ? "" : a.Parmi(kFrequences);
    case 6:
        return a.Un(8) ? "" : a.Parmi(kModes);
    case 10:
    case 16:
        return a.Un(3) ? a.Parmi(kFaux) : a.Un(6) ? "" : a.Parmi(kLocators);
    default:
        return a.Parmi(kPropres.at(boite));
    }
}

inline std::string TexteDEtiquette(Alea& a, int boite) {
    static const std::map<int, Textes> kPropres = {{6, {"59", "599"}},
                                                   {7, {"F5ABC", "F5ABC/P", "Foix"}},
                                                   {8, {"73", "Merci", "été"}},
                                                   {9, {"F6AJA", "", "", "DJ2MX"}},
                                                   {10, {"x"}},
                                                   {11, {"1", "2", "3", "12", "999", ""}}};
    if (a.Un(12))
        return a.Parmi(kFatras);
    return boite <= 5 ? TexteDeSaisie(a, boite < 4 ? boite : boite + 1)
                      : a.Parmi(kPropres.at(boite));
}

constexpr std::array<Poids, 25> kGenres = {
    {{"guide", 60},    {"bouton", 10},   {"menu", 8},    {"boite", 6},   {"droite", 1},
     {"f2", 1},        {"tab", 3},       {"entree", 3},  {"texte", 4},   {"ctrl", 2},
     {"retour", 1},    {"echap", 1},     {"espace", 1},  {"fleches", 4}, {"ligne", 3},
     {"contact", 1},   {"rangee", 2},    {"barre", 2},   {"alt", 2},     {"heure", 2},
     {"menubarre", 2}, {"recherche", 1}, {"locator", 1}, {"texte", 1},   {"feuille", 1}}};

constexpr std::array<Poids, 17> kMenus = {{{"MnuCourantF", 60},
                                           {"MnuAutreF", 30},
                                           {"MnuJumeler", 30},
                                           {"MnuCreateMDB", 10},
                                           {"MnuCopieSurDisque", 20},
                                           {"MnuClasser", 30},
                                           {"MnuDoublons", 30},
                                           {"MnuSauver", 30},
                                           {"MnuConfigImp", 10},
                                           {"MnuImpPage", 20},
                                           {"MnuImpPageVierge", 10},
                                           {"MnuChangerLocator", 80},
                                           {"MnuVirginTags", 20},
                                           {"MnuGestionFeuilleQSL", 60},
                                           {"MnuEditLocator", 8},
                                           {"MnuVoir", 6},
                                           {"MnuQuitter", 4}}};

// "_" stands for a place of the label sheet, to be drawn.
constexpr std::array<Poids, 40> kBoutons = {
    {{"BtNewQSO", 20},     {"BtKillFiche", 10},   {"BtFermerLog", 1},
     {"BtEnrSuivant", 15}, {"BtEnrTerminer", 8},  {"BtEnrAnnuler", 5},
     {"OptionEnr1", 8},    {"OptionEnr2", 5},     {"BtActiveRech", 12},
     {"FraCmdOui", 10},    {"FraCmdNon", 10},     {"BtChangValid", 8},
     {"BtChangAnnul", 6},  {"ChangLocChk", 8},    {"BtContactsFermer", 10},
     {"CmdSensHaut", 6},   {"CmdSensBas", 6},     {"CmdPageMoins", 6},
     {"CmdPagePlus", 6},   {"BtPjumeler", 6},     {"BtPjSauvegarder", 6},
     {"BtPjAnnuler", 6},   {"BtValidQSL", 8},     {"BtDelQSL", 6},
     {"BtLeaveQSL", 6},    {"BtPrintQSL", 8},     {"BtRestore", 8},
     {"BtQuitQSL", 6},     {"OptBureau", 6},      {"OptDirect", 6},
     {"OptVia", 2},        {"BtCtrl_Parfait", 8}, {"BtCtrl_Revoir", 6},
     {"BtTag_", 10},       {"BtChoix_", 14},      {"Horloge", 3},
     {"NrTag", 1},         {"LabJournal", 1},     {"PictFiche", 1},
     {"PictRech", 1}}};

} // namespace jumeaux
