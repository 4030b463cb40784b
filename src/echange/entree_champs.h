// The fields of the format into the fields of a record, one by one; entree.h is the whole.
#pragma once

#include "echange/entree.h"

namespace orvalis {

/// A contact on its way into a record.
struct Entree {
    const ContactAdif& contact;
    const Conventions& conventions;
    bool muette = false; ///< nothing is told, for a contact that is only tried
    QsoRecord fiche;
    ChampsSet refuses; ///< fields that keep the contact out
    bool locatorSuppose = false;
    struct Note {
        Champ champ;
        Remarque remarque;
    };
    std::vector<Note> notes;
    std::vector<Note> raisons; ///< why the fields keep it out

    /// The value of a field, without the blanks around it.
    [[nodiscard]] std::string_view operator[](Balise balise) const;
    void Noter(Champ champ, Balise balise, std::string_view devenu);
    void Refuser(Champ champ, Balise balise, std::string_view pourquoi);
    /// Puts bytes at the place of a field, or of a part of it.
    void Mettre(Champ champ, std::string_view octets, std::size_t decalage = 0);
};

/// All fields of the record.
void LireChamps(Entree& entree);

/// What became of a value that was cut or changed: "devient « … »".
[[nodiscard]] std::string Devenu(std::string_view octets);

// Those with rules of their own.
void LireHeuresAdif(Entree& entree);
void LireFrequenceAdif(Entree& entree);
void LireModeAdif(Entree& entree);
void LireDepartementAdif(Entree& entree);
void LireCartes(Entree& entree);

} // namespace orvalis
