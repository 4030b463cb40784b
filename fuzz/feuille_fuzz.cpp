// A label sheet of arbitrary bytes beside a small logbook. The input is a count, that many actions
// of the operator, and the bytes of the sheet.
#include "core/cahier.h"
#include "fichier_fuzz.h"
#include "qsl/vie_etiquette.h"

#include <algorithm>

namespace orvalis {
namespace {

void Agir(std::uint8_t action, Cahier& cahier, FeuilleQSL& feuille) {
    const int numero = 1 + action / 16;
    switch (action % 16) {
    case 0:
        static_cast<void>(PreparerEtiquette(cahier, feuille, NumeroFiche{1 + numero % 5}));
        break;
    case 1:
        static_cast<void>(ValiderEtiquette(cahier, feuille));
        break;
    case 2:
        static_cast<void>(SupprimerEtiquette(cahier, feuille));
        break;
    case 3:
        static_cast<void>(ToutEstParfait(cahier, feuille, "21/11/26"));
        break;
    case 4:
        DemanderControle(feuille);
        break;
    case 5:
        RevoirEtiquettes(feuille);
        break;
    case 6:
        ChoisirVoie(feuille, numero % 2 == 0 ? VoieQSL::Bureau : VoieQSL::Direct);
        break;
    case 7:
        CliquerTag(feuille, Place{numero});
        break;
    case 8:
        LaisserEtiquette(feuille);
        break;
    case 9:
        RestaurerFeuille(feuille);
        break;
    case 10:
        static_cast<void>(MontrerFeuille(feuille));
        break;
    case 11:
        SaisirBoiteEtiquette(feuille, static_cast<std::size_t>(1 + numero % 11), "F1QSOÉ");
        break;
    case 12: { // another program
        const std::string octets = "F2QSO" + std::string(kTailleEtiquette - 5, ' ');
        Fichier(feuille.chemin, ModeFichier::LectureEcriture)
            .Ecrire((numero - 1) * static_cast<std::int64_t>(kTailleEtiquette), octets);
        break;
    }
    case 13:
        if (AutoriserImpression(cahier, feuille, "F5ABC").fait)
            DemanderControle(feuille);
        break;
    default:
        CliquerChoix(feuille, Place{numero});
    }
    for (Place place = kPremierePlace; place <= kDernierePlace; ++place)
        static_cast<void>(VoirPlace(feuille, place));
}

std::string OctetsCahier() {
    std::string octets;
    for (const char* indicatif : {"F1QSO", "F2QSO", "F3QSO", "F4QSO", "\\"}) {
        QsoRecord fiche;
        MettreChamp(fiche, Champ::CSGN, indicatif);
        MettreChamp(fiche, Champ::DQSO, "12/05/02");
        MettreChamp(fiche, Champ::HDEB, "10:00");
        MettreChamp(fiche, Champ::MQSL, indicatif[1] > '2' ? "En cours" : "");
        octets.append(fiche.octets.begin(), fiche.octets.end());
    }
    return octets;
}

} // namespace
} // namespace orvalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t n) {
    using namespace orvalis;
    static const std::string kCahier = OctetsCahier();
    if (n == 0)
        return 0;
    const std::size_t actions = std::min<std::size_t>(octets[0] % 16, n - 1);
    const auto chemin = fuzz::Poser("FeuilleQSL.txt", octets + 1 + actions, n - 1 - actions);
    fuzz::Poser("F5ABC.Vek", reinterpret_cast<const std::uint8_t*>(kCahier.data()), kCahier.size());
    Cahier cahier;
    OuvrirCahier(cahier, fuzz::Dossier() / "F5ABC.Vek");
    CompterFiches(cahier);
    FeuilleQSL feuille;
    ChargerFeuilleQSL(feuille, fuzz::Dossier());
    for (std::size_t i = 1; i <= actions; ++i)
        Agir(octets[i], cahier, feuille);
    // Labels touch nothing of the contacts but their MQSL.
    std::string apres = fuzz::Relire(cahier.chemin);
    fuzz::Exiger(apres.size() == kCahier.size());
    for (std::size_t i = 143; i < apres.size(); i += kTailleFiche)
        apres.replace(i, 8, kCahier, i, 8);
    fuzz::Exiger(apres == kCahier);
    fuzz::Exiger(fuzz::Relire(chemin).size() >= n - 1 - actions);
    return 0;
}
