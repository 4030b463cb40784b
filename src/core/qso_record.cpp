#include "core/qso_record.h"

namespace orvalis {

std::string TexteChamp(const QsoRecord& fiche, Champ champ) {
    return DepuisCp1252(OctetsChamp(fiche, champ));
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
