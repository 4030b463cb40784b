#include "qsl/qsl_slot_record.h"

#include "core/texte.h"

#include <algorithm>

namespace orvalis {

std::string_view OctetsChamp(const QslSlotRecord& etiquette, ChampEtiquette champ) {
    const DescriptionChampEtiquette& d = Description(champ);
    return {etiquette.octets.data() + d.decalage, d.largeur};
}

std::string TexteRogne(const QslSlotRecord& etiquette, ChampEtiquette champ) {
    return DepuisCp1252(Rogner(OctetsChamp(etiquette, champ)));
}

void MettreChamp(QslSlotRecord& etiquette, ChampEtiquette champ, std::string_view utf8) {
    const DescriptionChampEtiquette& d = Description(champ);
    std::string octets = VersCp1252(utf8);
    octets.resize(d.largeur, ' ');
    std::copy(octets.begin(), octets.end(),
              etiquette.octets.begin() + static_cast<std::ptrdiff_t>(d.decalage));
}

bool EstLibre(const QslSlotRecord& etiquette) {
    return Rogner(OctetsChamp(etiquette, ChampEtiquette::Indicatif)) == kMarqueLibre;
}

} // namespace orvalis
