// Which contact of the logbook a label belongs to, and the mark that the contact carries for it.
// Contacts are read and written as records of their own: the card on show and the working slots
// stay as they are.
#pragma once

#include "core/cahier.h"
#include "qsl/feuille_qsl.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace orvalis {

/// MQSL of a contact that stands on the sheet.
inline constexpr std::string_view kEnCours = "En cours";

/// Whether a label has its contact, and why not.
enum class Correspondance : unsigned char {
    Aucune,           ///< no contact is the label's
    Unique,           ///< one is: the only one that is ever touched
    Plusieurs,        ///< more than one "En cours" could be
    PlusieursVierges, ///< more than one could be, all with a blank MQSL
    DejaMarquee,      ///< the label's contact has another mark
    DUneAutre         ///< the label's contact is another label's
};

/// What was found for a label.
struct ContactTrouve {
    NumeroFiche fiche; ///< none unless Unique
    Correspondance correspondance = Correspondance::Aucune;
    QsoRecord trouvee; ///< the contact as it was then
};

/// The contacts that the labels stand for, one answer for each label. The number on a label goes
/// stale when the log is sorted or a contact deleted, so it is believed at once only when that
/// contact is "En cours" and has the label's callsign, date and time. Otherwise the one contact
/// "En cours" with all three is taken; failing that, the one with all three whose MQSL is blank,
/// since a program killed behind the label never marked it; failing that, the numbered one "En
/// cours" with the callsign, or the date and time, unless it is another of these labels'. Where
/// several have all three, the numbered one is taken. Reads the logbook once at most.
[[nodiscard]] std::vector<ContactTrouve> TrouverContacts(const Cahier& cahier,
                                                         std::span<const QslSlotRecord> etiquettes);

/// The same for the prepared label at `place`, which must not take the contact of another
/// prepared label of the sheet.
[[nodiscard]] ContactTrouve ContactDeLaPlace(const Cahier& cahier, const FeuilleQSL& feuille,
                                             Place place);

/// The contact that the label just written at `place` is for. While the logbook is what it was when
/// the label was begun (`telQueCompte`), that is the one it numbers: at once and whatever its MQSL
/// when callsign, date and time agree; with the callsign, or the date and time, only when no
/// contact has all three and its MQSL is blank or "En cours". Otherwise as for any other label.
[[nodiscard]] ContactTrouve ContactDeLaNouvelle(const Cahier& cahier, const FeuilleQSL& feuille,
                                                Place place, bool telQueCompte);

/// The place of a prepared label that was written for contact `k` while the contact was
/// never marked (the program was killed in between); none when there is none. Such a label has the
/// contact's date and time, and its callsign or number, and no contact "En cours" to it.
[[nodiscard]] Place EtiquetteSansMarque(const Cahier& cahier, const FeuilleQSL& feuille,
                                        NumeroFiche k);

/// Sets MQSL of a contact found, cut to 8 characters; its other bytes stay. The caller flushes
/// (SynchroniserCahier), and has the logbook asked for (VerifierCahier) before it looks for the
/// contact. Returns false, having written nothing, when another program has changed it since.
[[nodiscard]] bool MarquerContact(Cahier& cahier, const ContactTrouve& trouve,
                                  std::string_view maQsl);

} // namespace orvalis
