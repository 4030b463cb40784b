#include "echange/contact_adif.h"

#include "echange/sens.h"

#include <algorithm>

namespace orvalis {
namespace {

constexpr std::array<std::string_view, kNbBalises> kNoms = {
    "CALL",         "QSO_DATE",      "TIME_ON",
    "QSO_DATE_OFF", "TIME_OFF",      "FREQ",
    "BAND",         "MODE",          "SUBMODE",
    "RST_SENT",     "RST_RCVD",      "NAME",
    "NAME_INTL",    "QTH",           "QTH_INTL",
    "COMMENT",      "COMMENT_INTL",  "QSL_VIA",
    "GRIDSQUARE",   "MY_GRIDSQUARE", "DXCC",
    "STATE",        "QSL_SENT",      "QSLSDATE",
    "QSL_RCVD",     "QSLRDATE",      "STATION_CALLSIGN",
    "QSL_SENT_VIA", "QSL_RCVD_VIA"};

constexpr std::string_view kHexa = "0123456789ABCDEF";

int Chiffre(char c) {
    const std::size_t place = kHexa.find(MajusculesAscii({&c, 1}));
    return place == kHexa.npos ? -1 : static_cast<int>(place);
}

// Asked of every field of every contact: no text is made for it.
bool MemeNom(std::string_view majuscules, std::string_view nom) {
    const auto pareil = [](char a, char b) {
        return a == b || (b >= 'a' && b <= 'z' && a == b - 'a' + 'A');
    };
    return majuscules.size() == nom.size() && pareil(majuscules.back(), nom.back()) &&
           std::equal(majuscules.begin(), majuscules.end(), nom.begin(), pareil);
}

template<std::size_t n>
std::optional<std::size_t> Chercher(const std::array<std::string_view, n>& noms,
                                    std::string_view nom) {
    for (std::size_t i = 0; i < n; ++i)
        if (MemeNom(noms[i], nom))
            return i;
    return {};
}

void Poser(ContactAdif& contact, std::string& place, std::string_view nom, std::string_view valeur,
           std::int64_t longueur) {
    contact.connu = true;
    valeur = valeur.substr(0, kValeurMax);
    if (longueur > static_cast<std::int64_t>(kValeurMax))
        Signaler(contact, nom, std::to_string(longueur) + " octets",
                 "le rapport n'en montre que le début");
    if (place.empty())
        place = valeur;
    else if (!valeur.empty() && place != valeur)
        Signaler(contact, nom, valeur, "champ répété : le premier compte");
}

} // namespace

std::string_view NomBalise(Balise balise) {
    return kNoms[static_cast<std::size_t>(balise)];
}

std::optional<Balise> BaliseNommee(std::string_view nom) {
    const auto place = Chercher(kNoms, nom);
    return place ? std::optional{static_cast<Balise>(*place)} : std::nullopt;
}

std::optional<Champ> ChampNomme(std::string_view nom) {
    static const auto kChampsNommes = [] {
        std::array<std::string_view, kNbChamps> noms;
        for (const auto& d : kChamps)
            noms[NumeroZone(d.champ) - 1] = NomChamp(d.champ);
        return noms;
    }();
    const auto place = Chercher(kChampsNommes, nom);
    return place ? std::optional{kChamps[*place].champ} : std::nullopt;
}

void ContactAdif::Vider() {
    for (std::string& valeur : valeurs)
        valeur.clear();
    for (std::string& valeur : exacts)
        valeur.clear();
    ligne = 0;
    connu = false;
    remarques.clear();
}

void Signaler(ContactAdif& contact, std::string_view champ, std::string_view avant,
              std::string_view devenu) {
    if (contact.remarques.size() < kRemarquesMax)
        contact.remarques.push_back({std::string{champ}, std::string{avant}, std::string{devenu}});
    else if (contact.remarques.size() == kRemarquesMax)
        contact.remarques.push_back({"", "", "et d'autres encore"});
}

bool PoserChamp(ContactAdif& contact, std::string_view nom, std::string_view valeur,
                std::int64_t longueur) {
    if (const auto balise = BaliseNommee(nom)) {
        Poser(contact, contact[*balise], nom, valeur, longueur);
        return true;
    }
    if (nom.size() <= kPrefixeOrvalis.size() ||
        !MemeNom(kPrefixeOrvalis, nom.substr(0, kPrefixeOrvalis.size())))
        return false;
    const auto champ = ChampNomme(nom.substr(kPrefixeOrvalis.size()));
    if (!champ)
        return false;
    Poser(contact, contact.exacts[NumeroZone(*champ) - 1], nom, valeur, longueur);
    return true;
}

std::string CoderOctets(std::string_view octets) {
    const std::size_t fin = octets.find_last_not_of(' ');
    octets = octets.substr(0, fin == octets.npos ? 1 : fin + 1);
    std::string texte;
    char precedent = ' ';
    for (const char c : octets) {
        const auto octet = static_cast<unsigned char>(c);
        if (octet < 0x20 || octet > 0x7E || c == '%' || (c == ' ' && precedent == ' ')) {
            texte += '%';
            texte += kHexa[octet / 16];
            texte += kHexa[octet % 16];
        } else {
            texte += c;
        }
        precedent = c;
    }
    return texte;
}

std::optional<std::string> DecoderOctets(std::string_view texte, std::size_t largeur) {
    std::string octets;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] != '%') {
            octets += texte[i];
            continue;
        }
        const int haut = i + 2 < texte.size() ? Chiffre(texte[i + 1]) : -1;
        const int bas = i + 2 < texte.size() ? Chiffre(texte[i + 2]) : -1;
        if (haut < 0 || bas < 0)
            return {};
        octets += static_cast<char>(16 * haut + bas);
        i += 2;
    }
    if (octets.size() > largeur)
        return {};
    octets.resize(largeur, ' ');
    return octets;
}

} // namespace orvalis
