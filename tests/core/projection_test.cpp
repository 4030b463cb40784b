#include "aides.h"
#include "core/projection.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace orvalis {
namespace {

constexpr std::size_t kTaille = 8192;
constexpr std::size_t kIci = 2048; // a piece from here lies over the border of two pages
constexpr std::size_t kPiece = kPlusGrandePiece;

Fichier FichierDe(char octet) {
    Fichier fichier(essai::Dossier() / "essai", ModeFichier::Creation);
    const std::string page(kTaille / 2, octet); // each page by itself, or they are kept as one
    fichier.Ecrire(0, page);
    fichier.Ecrire(kTaille / 2, page);
    return fichier;
}

TEST(Projection, RemplaceToutOuRien) {
    Fichier fichier = FichierDe('a');
    Projection projection(fichier, kTaille);
    const std::string a(kPiece, 'a'), b(kPiece, 'b');
    projection.Remplacer(kIci, b, a);
    std::string lu(kTaille, '\0');
    ASSERT_EQ(fichier.Lire(0, lu), kTaille);
    EXPECT_EQ(lu, std::string(kTaille, 'a').replace(kIci, kPiece, b));

    // The second page no longer takes anything: the part before it is put back.
    ASSERT_EQ(::ftruncate(fichier.Descripteur(), kTaille / 2), 0);
    EXPECT_THROW(projection.Remplacer(kIci, a, b), ErreurFichier);
    lu.resize(kTaille / 2);
    ASSERT_EQ(fichier.Lire(0, lu), lu.size());
    EXPECT_EQ(lu.substr(kIci), b.substr(0, kTaille / 2 - kIci));
}

TEST(Projection, TueePendantUnRemplacement) {
    Fichier fichier = FichierDe('a');
    const std::string a(kPiece, 'a'), b(kPiece, 'b');
    for (int essais = 0; essais < 100; ++essais) {
        int tube[2] = {};
        ASSERT_EQ(::pipe(tube), 0);
        const pid_t enfant = ::fork();
        if (enfant == 0) {
            Projection projection(fichier, kTaille);
            for (int i = 0;; ++i) {
                projection.Remplacer(kIci, i % 2 == 0 ? b : a, i % 2 == 0 ? a : b);
                if (i == essais && ::write(tube[1], ".", 1) != 1)
                    ::_exit(1);
            }
        }
        char signe = 0;
        EXPECT_EQ(::read(tube[0], &signe, 1), 1);
        ::kill(enfant, SIGKILL);
        ::waitpid(enfant, nullptr, 0);
        ::close(tube[0]);
        ::close(tube[1]);
        std::string lu(kPiece, '\0');
        ASSERT_EQ(fichier.Lire(kIci, lu), kPiece);
        ASSERT_EQ(lu, std::string(kPiece, lu.front())) << "cut in two by kill " << essais;
    }
}

} // namespace
} // namespace orvalis
