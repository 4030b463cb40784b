#include "echange/adif_fichiers.h"
#include "echange/sens.h"
#include "echange/tables_adif.h"

#include <array>

namespace orvalis {
namespace {

constexpr std::string_view kVersion = ORVALIS_VERSION;

void AjouterAdi(std::string& texte, std::string_view prefixe, std::string_view nom,
                std::string_view valeur) {
    texte += '<';
    texte += prefixe;
    texte += nom;
    texte += ':';
    texte += std::to_string(valeur.size());
    texte += '>';
    texte += valeur;
    texte += ' ';
}

void AjouterXml(std::string& texte, std::string_view valeur) {
    for (const char c : valeur)
        switch (c) {
        case '<':
            texte += "&lt;";
            break;
        case '>':
            texte += "&gt;";
            break;
        case '&':
            texte += "&amp;";
            break;
        default:
            texte += c;
        }
}

void AjouterElement(std::string& texte, std::string_view nom, std::string_view valeur) {
    texte += '<';
    texte += nom;
    texte += '>';
    AjouterXml(texte, valeur);
    texte += "</";
    texte += nom;
    texte += '>';
}

void AjouterChamp(GenreAdif genre, std::string& texte, std::string_view nom,
                  std::string_view valeur) {
    if (genre == GenreAdif::Adi)
        AjouterAdi(texte, "", nom, valeur);
    else
        AjouterElement(texte, nom, valeur);
}

void AjouterExact(GenreAdif genre, std::string& texte, Champ champ, std::string_view valeur) {
    if (genre == GenreAdif::Adi) {
        AjouterAdi(texte, kPrefixeOrvalis, NomChamp(champ), valeur);
        return;
    }
    texte += "<APP PROGRAMID=\"";
    texte += kProgramme;
    texte += "\" FIELDNAME=\"";
    texte += NomChamp(champ);
    texte += "\" TYPE=\"S\">";
    AjouterXml(texte, valeur);
    texte += "</APP>";
}

} // namespace

std::string EnteteAdif(GenreAdif genre, std::string_view creation) {
    const bool adi = genre == GenreAdif::Adi;
    std::string texte = adi ? "Cahier de trafic d'Orvalis\n"
                            : "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ADX>\n<HEADER>";
    const std::array<std::pair<std::string_view, std::string_view>, 4> champs = {{
        {"ADIF_VER", kVersionAdif},
        {"CREATED_TIMESTAMP", creation},
        {"PROGRAMID", kProgramme},
        {"PROGRAMVERSION", kVersion},
    }};
    for (const auto& [nom, valeur] : champs)
        AjouterChamp(genre, texte, nom, valeur);
    return texte + (adi ? "<EOH>\n" : "</HEADER>\n<RECORDS>\n");
}

void AjouterContact(GenreAdif genre, const ContactAdif& contact, std::string& texte) {
    const bool adi = genre == GenreAdif::Adi;
    if (!adi)
        texte += "<RECORD>";
    for (std::size_t i = 0; i < kNbBalises; ++i)
        if (!contact.valeurs[i].empty())
            AjouterChamp(genre, texte, NomBalise(static_cast<Balise>(i)), contact.valeurs[i]);
    for (const DescriptionChamp& d : kChamps)
        if (const std::string& exact = contact.exacts[NumeroZone(d.champ) - 1]; !exact.empty())
            AjouterExact(genre, texte, d.champ, exact);
    texte += adi ? "<EOR>\n" : "</RECORD>\n";
}

std::string_view FinAdif(GenreAdif genre) {
    return genre == GenreAdif::Adi ? "" : "</RECORDS>\n</ADX>\n";
}

} // namespace orvalis
