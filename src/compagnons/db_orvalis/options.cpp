#include "compagnons/db_orvalis/options.h"

#include <array>

namespace orvalis {
namespace {

// Which of the two works an option belongs to.
enum class Sens : unsigned char { Tous, Sortie, Entree };

struct Option {
    std::string_view nom;
    std::string_view valeur; ///< its name in the help; empty when it takes none
    std::optional<std::string> Options::*place;
    bool Options::*marque;
    Sens sens;
    bool fait; ///< one of these is what is to be done
    std::string_view aide;
};

constexpr std::array<Option, 12> kOptions = {{
    {"--base", "F.sqlite", &Options::base, nullptr, Sens::Sortie, true,
     "fait du cahier une base SQLite"},
    {"--adif", "F.adi", &Options::adif, nullptr, Sens::Sortie, true,
     "écrit les contacts dans un fichier ADIF (ADI)"},
    {"--adx", "F.adx", &Options::adx, nullptr, Sens::Sortie, true,
     "écrit les contacts dans un fichier ADIF (ADX)"},
    {"--bilan", "F.html", &Options::bilan, nullptr, Sens::Sortie, true,
     "fait du cahier une page de chiffres et de graphiques"},
    {"--cahier", "F.Vek", &Options::cahier, nullptr, Sens::Sortie, false,
     "le cahier à lire, au lieu de celui de la station"},
    {"--indicatif", "I", &Options::indicatif, nullptr, Sens::Sortie, false,
     "l'indicatif de la station, au lieu de celui des paramètres"},
    {"--importer", "F", &Options::importer, nullptr, Sens::Entree, true,
     "lit un fichier ADIF (ADI ou ADX)"},
    {"--vers", "G.Vek", &Options::vers, nullptr, Sens::Entree, false,
     "le cahier à faire, et son rapport à côté"},
    {"--locator", "L", &Options::locator, nullptr, Sens::Entree, false,
     "le locator de la station, pour les contacts qui ne le disent pas"},
    {"--remplacer", "", nullptr, &Options::remplacer, Sens::Entree, false,
     "remplace G.Vek s'il existe"},
    {"--heures", "utc|locales", &Options::heures, nullptr, Sens::Tous, false,
     "les heures du cahier : utc (d'office), locales, ou un fuseau comme Europe/Paris"},
    {"--help", "", nullptr, &Options::aide, Sens::Tous, true, "montre ces lignes"},
}};

const Option& Trouver(std::string_view nom) {
    for (const Option& option : kOptions)
        if (option.nom == nom)
            return option;
    throw OptionsRefusees("L'option « " + std::string{nom} + " » est inconnue.");
}

[[nodiscard]] bool Presente(const Options& options, const Option& option) {
    return option.marque != nullptr ? options.*option.marque : (options.*option.place).has_value();
}

void Controler(const Options& options) {
    if (options.aide)
        return;
    const Option* faire = nullptr;
    for (const Option& option : kOptions) {
        if (!option.fait || !Presente(options, option))
            continue;
        if (faire != nullptr)
            throw OptionsRefusees("« " + std::string{faire->nom} + " » et « " +
                                  std::string{option.nom} + " » ne vont pas ensemble.");
        faire = &option;
    }
    if (faire == nullptr)
        throw OptionsRefusees("Rien n'est demandé.");
    for (const Option& option : kOptions)
        if (Presente(options, option) && option.sens != Sens::Tous && option.sens != faire->sens)
            throw OptionsRefusees("« " + std::string{option.nom} + " » ne va pas avec « " +
                                  std::string{faire->nom} + " ».");
    if (options.importer && !options.vers)
        throw OptionsRefusees("« --importer » demande « --vers ».");
}

} // namespace

Options LireOptions(std::span<const std::string_view> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        const std::size_t egal = argument.find('=');
        const Option& option = Trouver(argument.substr(0, egal));
        const std::string nom(option.nom);
        if (Presente(options, option))
            throw OptionsRefusees("L'option « " + nom + " » est donnée deux fois.");
        if (option.marque != nullptr) {
            if (egal != argument.npos)
                throw OptionsRefusees("L'option « " + nom + " » ne prend pas de valeur.");
            options.*option.marque = true;
            continue;
        }
        if (egal == argument.npos && ++i == arguments.size())
            throw OptionsRefusees("L'option « " + nom + " » demande une valeur.");
        const std::string_view valeur =
            egal == argument.npos ? arguments[i] : argument.substr(egal + 1);
        if (valeur.empty() || valeur.starts_with("--"))
            throw OptionsRefusees("L'option « " + nom + " » demande une valeur.");
        options.*option.place = valeur;
    }
    Controler(options);
    return options;
}

std::string TexteAide() {
    constexpr std::size_t kLargeur = 24;
    std::string texte =
        "Usage :\n"
        "  dbOrvalis [--cahier F.Vek] (--base F.sqlite | --adif F.adi | --adx F.adx |\n"
        "            --bilan F.html)\n"
        "  dbOrvalis --importer F --vers G.Vek [--locator L] [--remplacer]\n\n"
        "Options :\n";
    for (const Option& option : kOptions) {
        std::string gauche(option.nom);
        if (!option.valeur.empty())
            gauche.append(" ").append(option.valeur);
        gauche.resize(std::max(kLargeur, gauche.size() + 2), ' ');
        texte.append("  ").append(gauche).append(option.aide).append("\n");
    }
    return texte + "\nCode de retour : 0 fait, 1 fait mais avec quelque chose à dire, 2 refusé.\n";
}

} // namespace orvalis
