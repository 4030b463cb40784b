// The label in the editor as it will be printed, and what the operator should look at twice before
// it is on paper.
#pragma once

#include "qsl/feuille_qsl.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvalis {

struct ApercuEtiquette {
    QslSlotRecord etiquette;
    bool sansIndicatif = false; ///< its heading lacks the own callsign
    bool sansManager = false;   ///< what is printed as the QSL manager is no callsign
    std::string avis;           ///< the same in French, a line each; empty when all is well
    friend bool operator==(const ApercuEtiquette&, const ApercuEtiquette&) = default;
};

/// What is printed of the label in the editor: during a review what is stored, else the record that
/// validating would write. It is never what the boxes show, which hold more than a label takes, and
/// report and mode exchanged once a label was read. Nothing while there is no label. `station` is
/// the own callsign.
[[nodiscard]] std::optional<ApercuEtiquette> VoirApercu(const EtatFeuille& feuille,
                                                        std::string_view station);

/// The prepared label of a place, without marks; nothing when the place holds none.
[[nodiscard]] std::optional<ApercuEtiquette> VoirPreparee(const EtatFeuille& feuille, Place place);

} // namespace orvalis
