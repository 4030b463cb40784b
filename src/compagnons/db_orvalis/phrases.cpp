#include "compagnons/db_orvalis/phrases.h"

#include "core/chemins.h"

namespace orvalis {

std::string Contacts(std::size_t nombre, std::string_view un, std::string_view plusieurs) {
    const bool pluriel = nombre > 1;
    return std::to_string(nombre) + (pluriel ? " contacts " : " contact ") +
           std::string{pluriel ? plusieurs : un};
}

Constat DireSortie(const BilanSortie& bilan, const std::filesystem::path& cahier,
                   const std::filesystem::path& cible, std::string_view sansDate,
                   std::string_view un, std::string_view plusieurs) {
    Constat constat{Contacts(bilan.contacts, un, plusieurs) + " dans «\u00A0" + TexteChemin(cible) +
                        "\u00A0».\n",
                    false};
    if (bilan.sansDate > 0)
        constat.texte += Contacts(bilan.sansDate, "n'a", "n'ont") +
                         " pas de date lisible\u00A0: " + std::string{sansDate} + ".\n";
    const bool sain = bilan.finPresente && bilan.longueurEntiere;
    if (!sain)
        constat.texte += "Le cahier «\u00A0" + TexteChemin(cahier) +
                         "\u00A0» n'a pas la fin d'un cahier\u00A0: il est peut-être abîmé.\n";
    constat.remarques = bilan.sansDate > 0 || !sain;
    return constat;
}

Constat DireImport(const BilanImport& bilan, const std::filesystem::path& cible) {
    return {Contacts(static_cast<std::size_t>(bilan.repris), "repris", "repris") + " dans «\u00A0" +
                TexteChemin(cible) +
                "\u00A0»\u00A0; changés\u00A0: " + std::to_string(bilan.changes) +
                ", égaux à un autre\u00A0: " + std::to_string(bilan.egaux) +
                ", laissés de côté\u00A0: " + std::to_string(bilan.laisses) +
                ". Le rapport est «\u00A0" + TexteChemin(bilan.rapport) + "\u00A0».\n",
            bilan.ADire()};
}

} // namespace orvalis
