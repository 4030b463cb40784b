// A contact of the logbook in the fields of the interchange format.
#pragma once

#include "echange/contact_adif.h"
#include "echange/heures.h"

namespace orvalis {

/// Whether names, towns and remarks with accents are given a second time, exactly, in their
/// international twins, which only one of the two kinds of file may carry.
enum class Jumeaux : unsigned char { Non, Oui };

/// Fills the fields of the format with what the contact says; what means nothing in the format is
/// left out. The contact is emptied before.
void ExporterChamps(const QsoRecord& fiche, const Fuseau& fuseau, Jumeaux jumeaux,
                    ContactAdif& contact);

/// The same, and our own fields for every field of the logbook whose bytes the others do not give
/// back: what ImporterContact makes of it is the contact, byte for byte.
void ExporterFiche(const QsoRecord& fiche, const Fuseau& fuseau, Jumeaux jumeaux,
                   ContactAdif& contact);

} // namespace orvalis
