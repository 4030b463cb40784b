// A contact in the fields of the interchange format as a record of the logbook. The rules, field by
// field, stand in docs/formats.md.
#pragma once

#include "echange/contact_adif.h"
#include "echange/heures.h"

#include <bitset>
#include <string>
#include <vector>

namespace orvalis {

/// What is not in the contact itself.
struct Conventions {
    const Fuseau& fuseau;      ///< what the hours of the logbook are
    std::string monLocator;    ///< for contacts that do not tell the station's own
    bool electronique = false; ///< the file tells of confirmations on line: no card is meant
};

/// What became of a contact.
struct ContactImporte {
    QsoRecord fiche;
    bool repris = false;         ///< false: it stays out
    bool locatorSuppose = false; ///< the station's locator is that of the conventions
    Remarque raison;             ///< why it stays out
    std::vector<Remarque> remarques;
};

/// The contact as a record. Our own fields count only while the others still say what this program
/// would have written beside them: otherwise another program has changed the contact, its fields
/// win, and that is told.
[[nodiscard]] ContactImporte ImporterContact(const ContactAdif& contact,
                                             const Conventions& conventions);

/// A mark for each field of the logbook.
using ChampsSet = std::bitset<kNbChamps>;

/// The record that the fields of the format alone give, without a word about what they lose, and
/// the fields for which a contact without our own would stay out or get a locator not its own.
ChampsSet RelireChamps(const ContactAdif& contact, const Fuseau& fuseau, QsoRecord& fiche);

} // namespace orvalis
