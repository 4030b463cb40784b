// Contacts as texts: "CSGN=F5ABC|DQSO=12/05/02", the fields of the logbook that are not blank.
#pragma once

#include "aides.h"
#include "echange/adif_fichiers.h"
#include "echange/entree.h"
#include "echange/importer.h"
#include "echange/sortie.h"

namespace orvalis::aides {

inline QsoRecord FicheDe(const std::string& texte) {
    QsoRecord fiche;
    for (const std::string& morceau : Couper(texte, "|")) {
        const std::size_t egal = morceau.find('=');
        MettreChamp(fiche, ChampNomme(morceau.substr(0, egal)).value(), morceau.substr(egal + 1));
    }
    return fiche;
}

inline std::string TexteDe(const QsoRecord& fiche) {
    std::string texte;
    for (const auto& d : kChamps)
        if (const std::string valeur = TexteChamp(fiche, d.champ);
            valeur.find_first_not_of(' ') != valeur.npos)
            texte += "|" + std::string(NomChamp(d.champ)) + "=" +
                     valeur.substr(0, valeur.find_last_not_of(' ') + 1);
    return texte.empty() ? texte : texte.substr(1);
}

/// What a file of contacts becomes: the records, then each remark as "[field: what became of it]".
struct Lu {
    std::string texte;
    BilanImport bilan;
};
inline Lu ImporterTexte(const std::string& octets, const Fuseau& fuseau = {},
                        const std::string& locator = "JN18AA") {
    const Dossier dossier;
    const auto source = dossier.Poser("source", octets);
    Lu lu;
    const auto voir = [&](const LigneRapport& ligne) {
        lu.texte += "[" + std::string(ligne.champ) + ": " + std::string(ligne.devenu) + "]";
    };
    const DemandeImport demande{source, dossier / "G.Vek", Ancien::Protege, locator, {}};
    static_cast<void>(EtudierImport(demande, fuseau, voir));
    lu.bilan = ImporterAdif(demande, fuseau);
    const std::string cahier = Lire(dossier / "G.Vek");
    std::string fiches;
    for (std::size_t i = 0; i + kTailleFiche < cahier.size(); i += kTailleFiche)
        fiches += (i == 0 ? "" : " & ") + TexteDe(Enregistrement(cahier.substr(i, kTailleFiche)));
    EXPECT_EQ(Enregistrement(cahier.substr(cahier.size() - kTailleFiche)), FicheFinDeLog(locator));
    lu.texte = fiches + lu.texte;
    return lu;
}

/// The contacts as a file.
inline std::string Ecrit(GenreAdif genre, const std::vector<QsoRecord>& fiches,
                         const Fuseau& fuseau = {}) {
    std::string texte = EnteteAdif(genre, "20261121 183125");
    ContactAdif contact;
    for (const QsoRecord& fiche : fiches) {
        ExporterFiche(fiche, fuseau, genre == GenreAdif::Adx ? Jumeaux::Oui : Jumeaux::Non,
                      contact);
        AjouterContact(genre, contact, texte);
    }
    return texte + std::string(FinAdif(genre));
}

} // namespace orvalis::aides
