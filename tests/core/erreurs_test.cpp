// What the operator reads when a file or the printer fails, and when that concerns the logbook.
#include "aides.h"
#include "core/erreurs.h"
#include "maint/copie.h"
#include "maint/jumelage.h"

#include <cerrno>

namespace orvalis {
namespace {

using namespace aides;

std::error_code Systeme(int code) {
    return {code, std::generic_category()};
}

TEST(Erreurs, PhrasesPourLOperateur) {
    using enum NatureErreur;
    const std::pair<Erreur, const char*> cas[] = {
        {{Ouvrir, "/o/F5.Vek", Systeme(ENOENT)},
         "Impossible d'ouvrir le fichier « /o/F5.Vek » : le fichier n'existe pas."},
        {{Creer, "/o/C.Vek", Systeme(ENOENT)},
         "Impossible de créer le fichier « /o/C.Vek » : le dossier n'existe pas."},
        {{Creer, "/o/C.Vek", Systeme(EACCES)},
         "Impossible de créer le fichier « /o/C.Vek » : l'accès est refusé."},
        {{Lire, "/o/F5.Vek", Systeme(EIO)},
         "Impossible de lire le fichier « /o/F5.Vek » : erreur de lecture ou d'écriture du "
         "support."},
        {{Ecrire, "/o/F5.Vek", Systeme(ENOSPC)},
         "Impossible d'écrire dans le fichier « /o/F5.Vek » : le disque est plein."},
        {{Synchroniser, "é.Vek", Systeme(EDQUOT)},
         "Impossible d'écrire dans le fichier « é.Vek » : l'espace disque accordé est épuisé."},
        {{Verrouiller, "F5.Vek", Systeme(EPERM)},
         "Impossible de réserver le fichier « F5.Vek » : l'opération n'est pas permise."},
        {{Remplacer, "P.cfg", Systeme(EROFS)},
         "Impossible de remplacer le fichier « P.cfg » : le support est protégé en écriture."},
        {{DejaOuvert, "F5.Vek"},
         "Le cahier « F5.Vek » est déjà ouvert par un autre programme Orvalis."},
        {{ParametresIncomplets, "P.cfg"},
         "Le fichier de paramètres « P.cfg » est incomplet : il doit contenir l'indicatif, le nom "
         "du cahier et le locator de la station."},
        {{EcrirePdf, "/o/a.pdf"}, "Impossible d'écrire le fichier PDF « /o/a.pdf »."},
        {Erreur::DImprimante("Bureau"),
         "L'imprimante « Bureau » ne répond pas : rien n'a été imprimé."},
        {Erreur::DImprimante(""), "Aucune imprimante n'est choisie."},
    };
    for (const auto& [erreur, phrase] : cas) {
        EXPECT_STREQ(erreur.what(), phrase);
        EXPECT_EQ(MessageErreur(erreur), phrase);
        EXPECT_FALSE(erreur.ConcerneLeCahier()) << phrase;
    }
    EXPECT_EQ(cas[0].first.code(), Systeme(ENOENT));
    EXPECT_EQ(MessageErreur(std::out_of_range("vector")), "Erreur inattendue : vector");
}

// Whether what `action` throws concerns the open logbook, "-" when it throws nothing.
template<class F> std::string Concerne(F action) {
    try {
        action();
    } catch (const Erreur& echec) {
        return echec.ConcerneLeCahier() ? "oui" : "non";
    }
    return "-";
}

TEST(Erreurs, SeulLeCahierOuvertEstEnCause) {
    const Dossier dossier;
    const auto notre = dossier.Poser("F5ABC.Vek", Contact("A") + Fin());
    const auto prise = dossier.Poser("P.Vek", Fin());
    Cahier cahier = Ouvrir(notre);
    const Cahier autreProgramme = Ouvrir(prise);
    EXPECT_EQ(Concerne([&] { OuvrirCahier(cahier, dossier / "absent.Vek"); }), "non");
    EXPECT_EQ(Concerne([&] { OuvrirCahier(cahier, prise); }), "non");
    EXPECT_EQ(Concerne([&] { CopierCahier(cahier, MaStation(), "/dev/full"); }), "non");
    EXPECT_EQ(Concerne([&] { CompterFiches(cahier); }), "-");

    // Paired from a file that is there, into a logbook that may not be written.
    Cahier protege;
    protege.fichier = FichierFiches(dossier.Poser("L.Vek", Fin()), ModeFichier::Lecture);
    protege.fichier.Support().DevenirLeCahier();
    EXPECT_EQ(Concerne([&] { JumelerCahier(protege, MaStation(), notre); }), "oui");
    EXPECT_EQ(Concerne([&] { JumelerCahier(protege, MaStation(), dossier / "rien"); }), "non");

    // Something else has taken the place of the open file, under its name.
    std::filesystem::remove(notre);
    std::filesystem::create_directory(notre);
    EXPECT_EQ(Concerne([&] { CompterFiches(cahier); }), "oui");
    EXPECT_EQ(Concerne([&] { OuvrirCahier(cahier, notre); }), "oui");
    EXPECT_EQ(Concerne([&] { OuvrirCahier(cahier, dossier / "absent.Vek"); }), "non");

    // The open logbook itself, wherever its object has moved.
    const FichierFiches ailleurs = std::move(cahier.fichier);
    const auto echec = ailleurs.Support().Echec(NatureErreur::Lire, Systeme(EIO));
    EXPECT_TRUE(echec.ConcerneLeCahier());
    EXPECT_EQ(echec.Chemin(), notre);
}

} // namespace
} // namespace orvalis
