#include "qsl/qsl_slot_record.h"

namespace orvalis {

bool EstLibre(const QslSlotRecord& etiquette) {
    return Rogner(OctetsChamp(etiquette, ChampEtiquette::Indicatif)) == kMarqueLibre;
}

} // namespace orvalis
