// What the operator reads when a file or the printer fails, and when that concerns the logbook.
#include "aides.h"
#include "core/erreurs.h"
#include "maint/copie.h"
#include "maint/jumelage.h"

#include <cerrno>

namespace orvalis::aides::erreurs {

std::error_code Systeme(int code) {
    return {code, std::generic_category()};
}

// The others are what the window is seen to say.
TEST(Erreurs, PhrasesPourLOperateur) {
    using enum NatureErreur;
    const std::tuple<NatureErreur, int, const char*> cas[] = {
        {Creer, EACCES,
         "de créer le fichier « é » : l'accès est refusé. Vérifiez vos droits sur ce fichier et "
         "sur son dossier."},
        {Lire, EIO,
         "de lire le fichier « é » : erreur de lecture ou d'écriture du support. Mettez vos "
         "fichiers à l'abri sur un autre support."},
#ifndef _WIN32
        {Synchroniser, EDQUOT,
         "d'écrire dans le fichier « é » : l'espace disque accordé est épuisé. Libérez de la "
         "place ou choisissez un autre disque."},
        {Verrouiller, ENOTEMPTY, "de réserver le fichier « é » : erreur n° 39 du système."},
#endif
        {CreerDossier, ENOENT, "de créer le dossier « é » : le dossier n'existe pas."},
        {LireDossier, EMFILE, "de lire le dossier « é » : trop de fichiers sont ouverts."},
        {Remplacer, EROFS,
         "de remplacer le fichier « é » : le support est protégé en écriture. Déverrouillez-le ou "
         "choisissez un autre support."}};
    for (const auto& [nature, code, phrase] : cas) {
        const Erreur erreur(nature, CheminTexte("é"), Systeme(code));
        EXPECT_EQ(MessageErreur(erreur), std::string{"Impossible "} + phrase);
        EXPECT_EQ(erreur.code(), Systeme(code));
        EXPECT_FALSE(erreur.ConcerneLeCahier()) << phrase;
    }
    EXPECT_STREQ(Erreur::DImprimante("Bureau").what(),
                 "L'imprimante « Bureau » ne répond pas : rien n'a été imprimé. Vérifiez-la, ou "
                 "prenez-en une autre par « Configurer imprimante ».");
    EXPECT_STREQ(Erreur::DImprimante("").what(), "Aucune imprimante n'est choisie. Prenez-en une "
                                                 "par « Configurer imprimante ».");
    EXPECT_EQ(MessageErreur(std::out_of_range("vector")), "Erreur inattendue.");
    EXPECT_EQ(MessageErreur(std::system_error(Systeme(ENOSPC))),
              "Erreur inattendue : le disque est plein.");
}

// What is thrown concerns the open logbook, or does not.
auto Concerne(bool leCahier) {
    return testing::Throws<Erreur>(testing::Property(&Erreur::ConcerneLeCahier, leCahier));
}

TEST(Erreurs, SeulLeCahierOuvertEstEnCause) {
    const Dossier dossier;
    const auto notre = dossier.Poser("F5ABC.Vek", Contact("A") + Fin());
    Cahier cahier = Ouvrir(notre);
    const Cahier autreProgramme = Ouvrir(dossier.Poser("P.Vek", Fin()));
    EXPECT_THAT([&] { OuvrirCahier(cahier, dossier / "absent.Vek"); }, Concerne(false));
    EXPECT_THAT([&] { OuvrirCahier(cahier, dossier / "P.Vek"); }, Concerne(false));
#ifndef _WIN32
    EXPECT_THAT([&] { CopierCahier(cahier, MaStation(), "/dev/full"); }, Concerne(false));
#endif
    EXPECT_NO_THROW(CompterFiches(cahier));

    // Paired from a file that is there, into a logbook that may not be written.
    Cahier protege;
    protege.chemin = dossier.Poser("L.Vek", Fin());
    protege.fichier = FichierFiches(protege.chemin, ModeFichier::Lecture);
    protege.fichier.Support().DevenirLeCahier();
    EXPECT_THAT([&] { JumelerCahier(protege, MaStation(), notre); }, Concerne(true));
    EXPECT_THAT([&] { JumelerCahier(protege, MaStation(), dossier / "rien"); }, Concerne(false));

#ifndef _WIN32
    // Something else has taken the place of the open file, under its name.
    std::filesystem::remove(notre);
    std::filesystem::create_directory(notre);
    EXPECT_NO_THROW(CompterFiches(cahier));
    EXPECT_THROW(OuvrirCahier(cahier, notre), CahierPerdu);
    EXPECT_THAT([&] { OuvrirCahier(cahier, dossier / "absent.Vek"); }, Concerne(false));
#endif

    // The open logbook itself, wherever its object has moved.
    const FichierFiches ailleurs = std::move(cahier.fichier);
    const auto echec = ailleurs.Support().Echec(NatureErreur::Lire, Systeme(EIO));
    EXPECT_TRUE(echec.ConcerneLeCahier());
    EXPECT_EQ(echec.Chemin(), notre);
}

} // namespace orvalis::aides::erreurs
