#include "maint/ouverture.h"

#include "core/texte.h"
#include "geo/locator.h"

namespace orvalis {

std::string NomAutreJournal(const std::filesystem::path& chemin) {
    constexpr std::size_t kExtension = 4;
    const std::string titre = chemin.filename().string();
    const std::size_t n = Longueur(titre);
    return std::string{n > kExtension ? Gauche(titre, n - kExtension) : titre};
}

BilanOuverture OuvrirAutreJournal(Session& session, const std::filesystem::path& chemin) {
    if (chemin == session.cheminJournal || session.journal.Support().EstLeMeme(chemin))
        return {};
    const std::string nom = NomAutreJournal(chemin);
    // Everything that can fail on reading is read before the current logbook is let go.
    const Journal essai(chemin, ModeFichier::Lecture);
    const std::int32_t nbFiches = essai.Compter();
    const QsoRecord fin = essai.Lire(nbFiches + 1);
    OuvrirJournal(session, chemin, nom != session.indicatif);

    session.autreJournal = nom;
    session.nbFiches = nbFiches;
    session.prochaineFiche = nbFiches + 1;
    session.ficheCourante = 0;
    const BilanOuverture bilan{true, ExaminerJournal(session)};
    if (bilan.etat.finPresente)
        session.monLocator = Cadrer(TexteRogne(fin, Champ::MLOC), kLargeurLocator);
    return bilan;
}

} // namespace orvalis
