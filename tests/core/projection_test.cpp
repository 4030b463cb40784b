#include "core/projection.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace orvalis {
namespace {

TEST(Projection, RemplaceToutOuRien) {
    std::string chemin = (std::filesystem::temp_directory_path() / "orvalisXXXXXX").string();
    ::close(::mkstemp(chemin.data()));
    Fichier fichier(chemin, ModeFichier::LectureEcriture);
    ASSERT_EQ(::unlink(chemin.c_str()), 0);
    const std::string avant(8192, 'a');
    fichier.Ecrire(0, avant);
    Projection projection(fichier, 8192);
    std::fill(projection.Atelier().begin(), projection.Atelier().end(), 'b');
    projection.Remplacer(4000, 330); // over the border of two pages

    std::string attendu = avant;
    attendu.replace(4000, 330, std::string(330, 'b'));
    std::string lu(8192, '\0');
    ASSERT_EQ(fichier.Lire(0, lu), lu.size());
    EXPECT_EQ(lu, attendu);

    // The second page no longer takes anything: the part before it is put back.
    ASSERT_EQ(::mprotect(const_cast<char*>(projection.Octets()) + 4096, 4096, PROT_READ), 0);
    std::fill(projection.Atelier().begin(), projection.Atelier().end(), 'c');
    EXPECT_THROW(projection.Remplacer(4000, 330), ErreurFichier);
    EXPECT_EQ(std::string(projection.Octets(), 8192), attendu);
}

} // namespace
} // namespace orvalis
