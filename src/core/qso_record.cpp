#include "core/qso_record.h"

#include "core/texte.h"

#include <algorithm>

namespace orvalis {

std::string_view OctetsChamp(const QsoRecord& fiche, Champ champ) {
    const DescriptionChamp& d = Description(champ);
    return {fiche.octets.data() + d.decalage, d.largeur};
}

std::string TexteChamp(const QsoRecord& fiche, Champ champ) {
    return DepuisCp1252(OctetsChamp(fiche, champ));
}

std::string TexteRogne(const QsoRecord& fiche, Champ champ) {
    return DepuisCp1252(Rogner(OctetsChamp(fiche, champ)));
}

void MettreChamp(QsoRecord& fiche, Champ champ, std::string_view utf8) {
    const DescriptionChamp& d = Description(champ);
    std::string octets = VersCp1252(utf8);
    octets.resize(d.largeur, ' ');
    std::copy(octets.begin(), octets.end(),
              fiche.octets.begin() + static_cast<std::ptrdiff_t>(d.decalage));
}

bool EstFinDeLog(const QsoRecord& fiche) {
    // Asked of every record of every count: the first byte answers for nearly all of them.
    const std::string_view indicatif = OctetsChamp(fiche, Champ::CSGN);
    return (indicatif.front() == '\\' || indicatif.front() == ' ') && Rogner(indicatif) == "\\";
}

QsoRecord FicheFinDeLog(std::string_view monLocator) {
    QsoRecord fin;
    MettreChamp(fin, Champ::CSGN, "\\");
    MettreChamp(fin, Champ::MLOC, monLocator);
    return fin;
}

} // namespace orvalis
