#include "aides.h"
#include "geo/notations.h"

namespace orvalis {
namespace {

TEST(Notations, DegresMinutesSecondes) {
    const std::pair<Dms, const char*> cas[] = {
        {{44, 8, 45}, "44.1375"}, {{0, 0, 1}, "0.0001"},       {{0, 1, 0}, "0.0200"},
        {{1, 30, 3}, "1.5005"},   {{179, 59, 59}, "179.9898"}, {{44, 60, 0}, "45.0000"}};
    for (const auto& [dms, decimal] : cas)
        EXPECT_EQ(FormaterDecimal(DmsVersDecimal(dms)), decimal);
    const std::pair<float, const char*> inverse[] = {
        {44.1458F, "44 8 35"},
        {-1.5417F, "1 32 10"},
        {-44.1375F, "44 8 45"},
        {179.9898F, "179 59 59"},
        {44.99996F, "44 60 0"}}; // no carry into the degrees
    for (const auto& [decimal, attendu] : inverse) {
        const Dms dms = DecimalVersDms(decimal);
        std::ostringstream texte;
        texte << dms.degres << ' ' << dms.minutes << ' ' << dms.secondes;
        EXPECT_EQ(texte.str(), attendu);
    }
}

TEST(Notations, TexteDecimal) {
    const std::pair<float, const char*> formats[] = {
        {44.145832F, "44.1458"}, {-1.5416666F, "-1.5417"},  {0.03125F, "0.0313"},
        {-0.03125F, "-0.0313"},  {-0.00001F, "0.0000"},     {-0.0F, "0.0000"},
        {0.99996F, "1.0000"},    {-179.95833F, "-179.9583"}};
    for (const auto& [valeur, attendu] : formats)
        EXPECT_EQ(FormaterDecimal(valeur), attendu);
    const std::string grand(400, '9');
    const std::string infime = "0." + std::string(400, '0') + "1";
    const std::pair<float, std::vector<std::string>> lectures[] = {
        {44, {"44", "44/5", "44-4", "44.", "44.0.2", "44e5", "044"}},
        {-0.5F, {"-.5", "-0.5", "-.5.5"}},
        {0, {"", "-", ".", "--5", "/5", "inf", "nan", infime}},
        {1000, {"99999", grand}},
        {-1000, {"-" + grand}}};
    for (const auto& [attendu, textes] : lectures)
        for (const std::string& texte : textes)
            EXPECT_EQ(LireDecimal(texte), attendu) << texte;
}

TEST(Notations, CaracteresAcceptes) {
    const std::pair<GenreBoite, std::u16string> cas[] = {{GenreBoite::Chiffres, u"0123456789"},
                                                         {GenreBoite::Hemisphere, u"NSns"},
                                                         {GenreBoite::Cote, u"EOeo"},
                                                         {GenreBoite::Decimal, u"-./0123456789"}};
    for (const auto& [genre, acceptes] : cas)
        for (char16_t c = 1; c < 0x180; ++c)
            EXPECT_EQ(FiltrerCaractere(genre, c) != 0, acceptes.find(c) != acceptes.npos) << +c;
    EXPECT_EQ(FiltrerCaractere(GenreBoite::Cote, u'o'), u'O');
    const std::u16string tape = u"j0-\u00E9\n\u0085\u007F\u20AC", attendu = u"J0-\u00C9";
    EXPECT_EQ(FiltrerTexte({GenreBoite::Locator, 0, 0}, tape, tape.size()).texte, attendu);
}

TEST(Notations, TexteInsere) {
    const auto filtrer = [](const std::u16string& texte) {
        const auto filtre = FiltrerTexte({GenreBoite::Chiffres, 2, 90}, texte, 3);
        return std::pair{filtre.texte, filtre.curseur};
    };
    using Filtre = std::pair<std::u16string, std::size_t>;
    EXPECT_EQ(filtrer(u"4a5"), Filtre(u"45", 2));   // dropped before the cut
    EXPECT_EQ(filtrer(u"9x844"), Filtre(u"44", 0)); // what stood behind the insertion stays
    EXPECT_EQ(filtrer(u"4995"), Filtre(u"45", 1));
}

} // namespace
} // namespace orvalis
