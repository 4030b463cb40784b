#include "aides.h"
#include "core/modification.h"
#include "decrire.h"

namespace orvalis {
namespace {

using namespace essai;

// A stored card under correction, its name and my QSL empty.
Session Carte(std::string_view /*etat*/ = "", std::string_view texte = "") {
    Session s;
    s.nbFiches = 12;
    s.ficheCourante = 12;
    s.monLocator = "JN18AA";
    s.tampon = Enregistrement("F5ABC          01/05/0218:3018:4514.25     SSB  59      59      "
                              "LYON                     JN15AA69                 "
                              "REM            MGR                    OK      JN18AA");
    s.zones = ZonesDeFiche(s.tampon);
    s.saisie.EnModification = true;
    s.saisie.TexteSaisi = texte;
    return s;
}

TEST(Modification, EntreeBoiteParBoite) {
    const auto entree = [](const Session& s, std::size_t boite, std::string_view) {
        return ValiderBoite(s, boite, {});
    };
    Derouler(Carte, entree, R"(
 1 '' c1=1; 1 '\' c1=1; 1 ' F6X ' z1=F6X texte=F6X * +Cadre;
 2 '1/5/02' c2=1; 2 '31/04/02' -EnModification; 2 '02/05/02' z2=02/05/02 * +Cadre;
 3 '9:30' t3=18:30 c3=1; 3 '24:00' -EnModification; 3 '9:5//' z3=09:00 * +Cadre;
 4 '' t4=18:45 c4=1; 4 '19:00' z4=19:00 * +Cadre; 5 '' t5=14.25 c5=1; 5 '7.05' z5=7.05 * +Cadre;
 6 ' ' t6=SSB c6=1 texte=; 6 'CW' z6=CW * +Cadre; 7 '' t7=59 c7=1; 7 '57' z7=57 * +Cadre;
 8 '' t8=59 c8=1; 8 '44+' z8=44+ * +Cadre; 9 '' z9= * +Cadre; 9 'PARIS' z9=PARIS * +Cadre;
 10 '' -EnModification; 10 'JN05BB' z10=JN05BB * +Cadre; 10 'JN05B' texte= ERREUR=10 ->10;
 11 '' z11= * +Cadre dept=; 11 '7' z11=07 texte=07 * +Cadre dept=; 11 '0' z11=0 * +Cadre dept=;
 11 '95' z11=95 * +Cadre dept=; 11 '96' t11= c11=1 texte=; 11 '970' t11= c11=1 texte=;
 11 '974' z11=974 * +Cadre dept=; 11 '975' t11= c11=1 texte=;
 12 '' t12= c12=1; 12 'jean PIERRE' z12=Jean Pierre texte=Jean Pierre * +Cadre;
 13 '' z0=               MGR             z13= * +Cadre;
 13 'BON' z0=BON            MGR             z13=BON * +Cadre;
 14 '' t14= c14=1; 14 'Reçue' z14=Reçue * +Cadre; 15 '' z15= * +Cadre;
 16 '' c16=1; 16 'IN95AA' z16=IN95AA * +Cadre; 16 'ZZ95AA' texte= ERREUR=16 ->16;
 17 '' z0=REM                            z17= * +Cadre;
 17 'F9X' z0=REM            F9X             z17=F9X * +Cadre;)");
}

TEST(Modification, LesChangementsSAccumulentJusquALaReponse) {
    Session session = Carte("", "7.05");
    Appliquer(session, ValiderBoite(session, 5, {}));
    session.saisie.EnModification = true;
    session.saisie.TexteSaisi = "31/04/02"; // refused, but the frame still has a change to ask for
    EXPECT_EQ(Decrire(session, ValiderBoite(session, 2, {})), "-EnModification +Cadre");
    session.saisie.TexteSaisi = "CW";
    Appliquer(session, ValiderBoite(session, 6, {}));
    EXPECT_EQ(session.saisie.NbModifs, 2);
    const std::string repos =
        " c2=1 c3=1 c4=1 c5=1 c6=1 c7=1 c8=1 c9=1 c10=1 c11=1 c12=1 c13=1 c14=1 c15=1 c16=1";
    EXPECT_EQ(Decrire(session, RepondreOui(session)), "c1=1" + repos + " modifs=0");
    EXPECT_EQ(Decrire(session, RepondreNon(session)),
              "c1=3" + repos + " c17=1 modifs=0 dist= azim=");
    OublierModifications(session.saisie);
    EXPECT_EQ(Decrire(session, RepondreNon(session)), "");
    EXPECT_EQ(CadreEffacer(session).numero + CadreModifier(session).indicatif, "12F5ABC");
}

TEST(Modification, NombreArrondiAuPair) {
    const auto nombre = [](std::string_view t) { return std::to_string(ArrondirNombre(t)); };
    EXPECT_EQ(Suite(nombre, "|2A|075|0.5|1.5|2.5|.6|1.49|-3| 7|A5|1.2.9|3-2|99999999999999999999"),
              "0|2|75|0|2|2|1|1|-3|7|0|1|3|32767");
}

} // namespace
} // namespace orvalis
