#include "aides.h"
#include "core/projection.h"

#include <csignal>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvalis::aides::projection {

constexpr std::size_t kTaille = 8192;
constexpr std::size_t kIci = 2048; // a piece from here lies over the border of two pages
constexpr std::size_t kPiece = kPlusGrandePiece;

Fichier FichierDe(char octet) {
    Fichier fichier(Dossier() / "essai", ModeFichier::Creation);
    const std::string page(kTaille / 2, octet); // each page by itself, or they are kept as one
    fichier.Ecrire(0, page);
    fichier.Ecrire(kTaille / 2, page);
    return fichier;
}

// At most kTaille bytes from `position`.
std::string Contenu(const Fichier& fichier, std::int64_t position) {
    std::string lu(kTaille, '\0');
    lu.resize(fichier.Lire(position, lu));
    return lu;
}

void Remplir(Projection& projection, char octet) {
    std::fill(projection.Atelier().begin(), projection.Atelier().end(), octet);
}

TEST(Projection, RemplaceToutOuRien) {
    Fichier fichier = FichierDe('a');
    Projection projection(fichier, kTaille);
    Remplir(projection, 'b');
    projection.Remplacer(kIci, kPiece);
    const std::string attendu = std::string(kTaille, 'a').replace(kIci, kPiece, kPiece, 'b');
    EXPECT_EQ(Contenu(fichier, 0), attendu);

    // The second page no longer takes anything: the part before it is put back.
    auto* page = const_cast<char*>(projection.Octets()) + kTaille / 2;
    ASSERT_EQ(::mprotect(page, kTaille / 2, PROT_READ), 0);
    Remplir(projection, 'c');
    EXPECT_THROW(projection.Remplacer(kIci, kPiece), Erreur);
    EXPECT_EQ(std::string(projection.Octets(), kTaille), attendu);
}

TEST(Projection, FichierRaccourciParUnAutre) {
    for (const std::size_t reste : {std::size_t{0}, kIci + 1, kTaille / 2, kTaille - kIci - 1}) {
        Fichier fichier = FichierDe('a');
        fichier.DevenirLeCahier();
        Projection projection(fichier, kTaille);
        Remplir(projection, 'b');
        ASSERT_EQ(::ftruncate(static_cast<int>(fichier.Poignee()), static_cast<off_t>(reste)), 0);
        EXPECT_THAT([&] { projection.Remplacer(kIci, kPiece); },
                    testing::Throws<Erreur>(testing::Property(&Erreur::ConcerneLeCahier, true)));
        projection.Amener(0);
        if (reste <= kTaille / 2) { // else the page is still there, and takes what the file has not
            EXPECT_THROW(projection.Remplacer(kIci, std::string(kPiece, 'a')), Erreur) << reste;
        }
        EXPECT_EQ(Contenu(fichier, 0), std::string(reste, 'a')) << "what remains stays as it was";
    }
}

TEST(Projection, TueePendantUnRemplacement) {
    Fichier fichier = FichierDe('a');
    for (int essais = 0; essais < 100; ++essais) {
        int tube[2] = {};
        ASSERT_EQ(::pipe(tube), 0);
        const pid_t enfant = ::fork();
        if (enfant == 0) {
            Projection projection(fichier, kTaille);
            for (int i = 0;; ++i) {
                Remplir(projection, i % 2 == 0 ? 'a' : 'b');
                projection.Remplacer(kIci, kPiece);
                if (i == essais && ::write(tube[1], ".", 1) != 1)
                    ::_exit(1);
            }
        }
        char signe = 0;
        EXPECT_EQ(::read(tube[0], &signe, 1), 1);
        ::kill(enfant, SIGKILL);
        ::waitpid(enfant, nullptr, 0);
        for (const int bout : tube)
            ::close(bout);
        const std::string lu = Contenu(fichier, kIci).substr(0, kPiece);
        ASSERT_EQ(lu, std::string(kPiece, lu[0])) << "cut in two by kill " << essais;
    }
}

} // namespace orvalis::aides::projection
