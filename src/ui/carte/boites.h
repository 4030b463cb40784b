// The seventeen entry boxes of the card: their names, one table. And what any box of the program,
// here and in the dialogs, takes from the keyboard.
#pragma once

#include "core/qso_record.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvalis {

/// An entry box, by the number in its name: box `Ville` is the control "TxtField_9". It is also
/// the name of the working slot behind the box (zones.h).
enum class Boite : unsigned char {
    Indicatif = 1,
    Date,
    Debut, ///< start time
    Fin,   ///< end time
    Frequence,
    Mode,
    ReportDonne,
    ReportRecu,
    Ville,
    SonLocator,
    Departement,
    Prenom,
    Remarque, ///< left half of INFO
    MaQsl,
    SaQsl,
    MonLocator,
    Manager ///< right half of INFO
};

inline constexpr std::size_t kNbBoites = 17;

/// The number in a box's name, 1 to 17.
[[nodiscard]] constexpr int Numero(Boite boite) {
    return static_cast<int>(boite);
}
/// Place of a box in an array of seventeen.
[[nodiscard]] constexpr std::size_t Rang(Boite boite) {
    return static_cast<std::size_t>(boite) - 1;
}
/// The box that shows a field whole; INFO, shown in halves, gives its left one.
[[nodiscard]] constexpr Boite BoiteDe(Champ champ) {
    return static_cast<Boite>(champ);
}

/// What a box does with a typed character. Backspace and Enter always pass.
enum class Touches {
    Libres,        ///< everything passes
    Majuscules,    ///< letters are turned to upper case
    DateHeureFreq, ///< "." to ":" (codes 46 to 58: point, stroke, digits, colon)
    Report,        ///< the same and "+"
    Chiffres,      ///< digits only
    // Of the coordinates dialog:
    Hemisphere, ///< "N" or "S", in upper case
    Cote,       ///< "E" or "O", in upper case
    Decimal,    ///< digits, "-", "." and "/"
    Locator     ///< Latin-1 turned to upper case; what lies beyond is refused, not replaced
};

struct DescriptionBoite {
    Boite boite;
    std::string_view nomLegende; ///< objectName of the caption above; empty: shares the last one
    std::string_view legende;    ///< the caption, underscores and blanks included
    std::size_t longueur;        ///< most characters the box takes
    bool centre;
    Touches touches;
    std::string_view exemple; ///< shown pale in the empty box that is typed in; none: nothing
    std::string_view nom;     ///< where its caption is not seen: in a sentence, by a screen reader
    std::string_view prend;   ///< what it takes where that is not plain, in words
    std::string_view faut;    ///< what Enter needs where it does not take any text, in words
    std::string_view modele;  ///< a text of that form, where there is one
};

/// In the order of their numbers. My QSL has no example: it is left to the QSL service.
inline constexpr std::array<DescriptionBoite, kNbBoites> kBoites = {{
    {Boite::Indicatif, "Frm01Lab01", "_ Indicatif_______________________", 15, false,
     Touches::Majuscules, "ex. F5ABC", "Indicatif", "", "un indicatif", ""},
    {Boite::Date, "Frm01Lab02", "_ Date _____", 8, true, Touches::DateHeureFreq, "jj/mm/aa", "Date",
     "", "jj/mm/aa", "01/02/03"},
    {Boite::Debut, "Frm01Lab03", "_ Heures   Début /  Fin", 5, true, Touches::DateHeureFreq,
     "hh:mm", "Heure de début", "", "hh:mm", "12:34"},
    {Boite::Fin, "", "", 5, true, Touches::DateHeureFreq, "hh:mm", "Heure de fin", "", "hh:mm",
     "12:34"},
    {Boite::Frequence, "Frm01Lab05", "_ Fréquence________", 10, false, Touches::DateHeureFreq,
     "ex. 14.200", "Fréquence", "MHz, point décimal", "une fréquence", ""},
    {Boite::Mode, "Frm01Lab06", "_ Mode______", 5, true, Touches::Majuscules, "ex. SSB", "Mode", "",
     "un mode", ""},
    {Boite::ReportDonne, "Frm01Lab07", "_ RST Donné    /    Reçu", 8, true, Touches::Report,
     "ex. 59", "RST donné", "chiffres, point et +", "un report", ""},
    {Boite::ReportRecu, "", "", 8, true, Touches::Report, "ex. 59", "RST reçu",
     "chiffres, point et +", "un report", ""},
    {Boite::Ville, "Frm01Lab09", "_ QTH ______________________________", 25, false,
     Touches::Majuscules, "ex. BLOIS", "QTH", "", "", ""},
    {Boite::SonLocator, "Frm01Lab10", "_ Son Locator _", 6, true, Touches::Majuscules, "ex. JN18DU",
     "Son locator", "", "un locator comme JN18DU", "JN18DU"},
    {Boite::Departement, "Frm01Lab11", "_ Département ____________", 3, true, Touches::Chiffres,
     "ex. 41", "Département", "", "0 à 95 ou 971 à 974", ""},
    {Boite::Prenom, "Frm01Lab12", "_ Prénom  ___________________________", 15, false,
     Touches::Libres, "ex. Jean", "Prénom", "", "", ""},
    {Boite::Remarque, "lblLabels", "_ Infos ____________", 15, false, Touches::Majuscules,
     "ex. BON SIGNAL", "Informations", "", "", ""},
    {Boite::MaQsl, "Frm01Lab14", "_ Ma QSL ___", 8, true, Touches::Libres, "", "Ma QSL", "", "",
     ""},
    {Boite::SaQsl, "Frm01Lab15", "_ Sa QSL __", 8, true, Touches::Libres, "jj/mm/aa", "Sa QSL", "",
     "", ""},
    {Boite::MonLocator, "Frm01Lab16", " _Mon Locator__", 6, true, Touches::Majuscules, "ex. JN18DU",
     "Mon locator", "", "un locator comme JN18DU", "JN18DU"},
    {Boite::Manager, "lblLabels_17", "_ QSL Manager ______", 15, false, Touches::Majuscules,
     "ex. F6XYZ", "QSL manager", "", "", ""},
}};

[[nodiscard]] constexpr const DescriptionBoite& Decrire(Boite boite) {
    return kBoites[Rang(boite)];
}

/// Order in which the Tab key walks through the boxes; the Enter key has an order of its own.
inline constexpr std::array<Boite, kNbBoites> kOrdreTabulation = {
    Boite::Prenom,     Boite::Departement, Boite::SonLocator, Boite::ReportRecu, Boite::ReportDonne,
    Boite::Mode,       Boite::Frequence,   Boite::Fin,        Boite::Debut,      Boite::Date,
    Boite::Indicatif,  Boite::Ville,       Boite::SaQsl,      Boite::MaQsl,      Boite::Manager,
    Boite::MonLocator, Boite::Remarque};

/// The characters of `saisie` (typed or pasted, UTF-8) that a box takes, in the case it takes
/// them; refused ones are left out.
[[nodiscard]] std::string FiltrerTouches(Touches touches, std::string_view saisie);

/// Text and cursor of a box after an edit.
struct TexteEdite {
    std::string texte;
    std::size_t curseur = 0; ///< in characters
};

/// What a box of `longueur` characters holds when an edit turned `ancien` into `nouveau`, leaving
/// the cursor behind the inserted part: that part alone is filtered by `touches`, then cut to the
/// room that is left. What stood in the box before is never touched; where nothing of an inserted
/// part passes, the edit is undone, so that a refused paste does not erase what was selected.
[[nodiscard]] TexteEdite FiltrerEdition(Touches touches, std::size_t longueur,
                                        std::string_view ancien, const TexteEdite& nouveau);

/// What a box of the coordinates dialog holds after an edit that leaves the cursor behind the
/// inserted part. Unlike FiltrerEdition it filters the whole text, and a paste of which nothing
/// passes erases what was selected. Refused characters are dropped first, then the inserted text
/// is cut from its end until the box has `longueur` characters (0: any number).
[[nodiscard]] TexteEdite FiltrerTexte(Touches touches, std::size_t longueur,
                                      const TexteEdite& nouveau);

} // namespace orvalis
