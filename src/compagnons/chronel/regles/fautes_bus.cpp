// The sentences for what the bus, the service or the keeper of permissions refuses.
#include "compagnons/chronel/regles/etat_service.h"

#include <array>

namespace orvalis {
namespace {

constexpr std::string_view kAbsent =
    "Le service du système qui tient l'heure (systemd-timedated) n'est pas installé sur cet "
    "ordinateur\u00A0: Chronel montre l'heure, mais ne peut pas la régler.";
constexpr std::string_view kNeDemarrePas =
    "Le service du système qui tient l'heure (systemd-timedated) ne démarre pas\u00A0: Chronel "
    "montre l'heure, mais ne peut pas la régler.";
constexpr std::string_view kSansPermission =
    "La permission n'a pas été donnée\u00A0: rien n'est changé.";
constexpr std::string_view kSansAgent =
    "Rien sur ce bureau ne peut demander la permission (agent d'authentification absent)\u00A0: "
    "rien n'est changé.";
constexpr std::string_view kParLeReseau =
    "Le système tient l'heure par le réseau\u00A0: coupez d'abord la mise à l'heure par le réseau.";
constexpr std::string_view kSansProgramme =
    "Aucun programme de mise à l'heure par le réseau n'est installé sur cet ordinateur.";
constexpr std::string_view kMuet = "Le service du système qui tient l'heure ne répond pas.";
constexpr std::string_view kCoupe = "Le bus du système (D-Bus) ne répond plus.";
constexpr std::string_view kInconnu =
    "Le service du système qui tient l'heure ne connaît pas cette demande.";
constexpr std::string_view kHeureRefusee = "Le système refuse cette date ou cette heure.";

struct Faute {
    std::string_view nom; // with a dot at its end, of every error that begins so
    std::string_view phrase;
};

constexpr std::array kFautes = std::to_array<Faute>({
    {"org.freedesktop.DBus.Error.ServiceUnknown", kAbsent},
    {"org.freedesktop.DBus.Error.NameHasNoOwner", kAbsent},
    {"org.freedesktop.DBus.Error.Spawn.ServiceNotFound", kAbsent},
    {"org.freedesktop.systemd1.NoSuchUnit", kAbsent},
    {"org.freedesktop.DBus.Error.Spawn.", kNeDemarrePas},
    {"org.freedesktop.systemd1.", kNeDemarrePas},
    {"org.freedesktop.DBus.Error.AccessDenied", kSansPermission},
    {"org.freedesktop.DBus.Error.AuthFailed", kSansPermission},
    {"org.freedesktop.PolicyKit1.Error.", kSansPermission},
    {"System.Error.ECANCELED", kSansPermission},
    {"org.freedesktop.DBus.Error.InteractiveAuthorizationRequired", kSansAgent},
    {"org.freedesktop.timedate1.AutomaticTimeSyncEnabled", kParLeReseau},
    {"org.freedesktop.timedate1.NoNTPSupport", kSansProgramme},
    {"org.freedesktop.DBus.Error.NoReply", kMuet},
    {"org.freedesktop.DBus.Error.Timeout", kMuet},
    {"org.freedesktop.DBus.Error.TimedOut", kMuet},
    {"org.freedesktop.DBus.Error.Disconnected", kCoupe},
    {"org.freedesktop.DBus.Error.NoServer", kCoupe},
    {"org.freedesktop.DBus.Error.UnknownMethod", kInconnu},
    {"org.freedesktop.DBus.Error.UnknownInterface", kInconnu},
    {"org.freedesktop.DBus.Error.UnknownObject", kInconnu},
    {"org.freedesktop.DBus.Error.UnknownProperty", kInconnu},
    {"org.freedesktop.DBus.Error.InvalidArgs", kHeureRefusee},
});

} // namespace

std::string DireFaute(std::string_view nom, std::string_view texte) {
    for (const Faute& faute : kFautes)
        if (faute.nom.back() == '.' ? nom.starts_with(faute.nom) : nom == faute.nom)
            return std::string{faute.phrase};
    return "Le système a refusé\u00A0: «\u00A0" + std::string{texte.empty() ? nom : texte} +
           "\u00A0».";
}

} // namespace orvalis
