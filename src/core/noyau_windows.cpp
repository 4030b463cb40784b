#ifdef _WIN32

#include "core/chemins.h"
#include "core/noyau.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <windows.h>

namespace orvalis {

// Wide calls hold whatever the code page of the system is. Half a surrogate, which a name of a file
// may have, becomes U+FFFD and is no fault.
std::string TexteChemin(const std::filesystem::path& chemin) {
    std::wstring large = chemin.native();
    std::replace(large.begin(), large.end(), L'/', L'\\');
    const auto nombre = static_cast<int>(large.size());
    const int taille =
        ::WideCharToMultiByte(CP_UTF8, 0, large.data(), nombre, nullptr, 0, nullptr, nullptr);
    std::string texte(static_cast<std::size_t>(taille), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, large.data(), nombre, texte.data(), taille, nullptr, nullptr);
    return texte;
}

std::filesystem::path CheminTexte(std::string_view texte) {
    const auto nombre = static_cast<int>(texte.size());
    const int taille = ::MultiByteToWideChar(CP_UTF8, 0, texte.data(), nombre, nullptr, 0);
    std::wstring large(static_cast<std::size_t>(taille), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, texte.data(), nombre, large.data(), taille);
    return {large};
}

namespace noyau {
namespace {

constexpr DWORD kPartageEntier = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE Systeme(Poignee poignee) {
    return reinterpret_cast<HANDLE>(poignee);
}

std::error_code Raison(DWORD code) {
    return Commune({static_cast<int>(code), std::system_category()});
}

std::error_code DerniereErreur() {
    return Raison(::GetLastError());
}

OVERLAPPED Place(std::int64_t position) {
    constexpr int kMoitie = 32;
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(position & 0xFFFFFFFF);
    place.OffsetHigh = static_cast<DWORD>(position >> kMoitie);
    return place;
}

DWORD Longueur(std::size_t taille) {
    constexpr std::size_t kMorceau = 1UL << 30;
    return static_cast<DWORD>(std::min(taille, kMorceau));
}

// Who keeps an eye on files, against viruses or for a copy elsewhere, holds one for a moment that
// was just touched.
HANDLE OuvrirPatiemment(const std::filesystem::path& chemin, DWORD acces, DWORD partage,
                        DWORD creation) {
    constexpr int kEssais = 20;
    constexpr DWORD kAttente = 50;
    for (int essai = 0;; ++essai) {
        HANDLE poignee = ::CreateFileW(chemin.c_str(), acces, partage, nullptr, creation,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
        if (poignee != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_SHARING_VIOLATION ||
            essai == kEssais)
            return poignee;
        ::Sleep(kAttente);
    }
}

bool Identifier(HANDLE poignee, BY_HANDLE_FILE_INFORMATION& identite) {
    return ::GetFileInformationByHandle(poignee, &identite) != 0;
}

void PoserTaille(HANDLE poignee, FILE_INFO_BY_HANDLE_CLASS quoi, std::int64_t taille,
                 std::error_code& raison) {
    LARGE_INTEGER valeur;
    valeur.QuadPart = taille;
    if (::SetFileInformationByHandle(poignee, quoi, &valeur, sizeof valeur) == 0)
        raison = DerniereErreur();
}

} // namespace

// For writing: whoever else wants to write is refused, and that is the lock; whoever reads and lets
// write is not. For reading: nobody is hindered in anything.
Poignee Ouvrir(const std::filesystem::path& chemin, ModeFichier mode, std::error_code& raison) {
    const DWORD attributs = ::GetFileAttributesW(chemin.c_str());
    if (attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        raison = std::make_error_code(std::errc::is_a_directory);
        return kAucune;
    }
    const bool lecture = mode == ModeFichier::Lecture;
    HANDLE poignee =
        OuvrirPatiemment(chemin, lecture ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE,
                         lecture || mode == ModeFichier::Partage ? kPartageEntier : FILE_SHARE_READ,
                         mode == ModeFichier::Creation ? OPEN_ALWAYS : OPEN_EXISTING);
    if (poignee == INVALID_HANDLE_VALUE) {
        raison = DerniereErreur();
        return kAucune;
    }
    if (::GetFileType(poignee) != FILE_TYPE_DISK) {
        ::CloseHandle(poignee);
        raison = std::make_error_code(std::errc::invalid_seek);
        return kAucune;
    }
    return reinterpret_cast<Poignee>(poignee);
}

void Fermer(Poignee poignee) noexcept {
    ::CloseHandle(Systeme(poignee));
}

bool TenuParUnAutre(const std::filesystem::path& chemin, const std::error_code& raison) {
    if (raison != std::errc::device_or_resource_busy)
        return false;
    HANDLE poignee = ::CreateFileW(chemin.c_str(), GENERIC_READ, kPartageEntier, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (poignee == INVALID_HANDLE_VALUE)
        return false;
    ::CloseHandle(poignee);
    return true;
}

std::int64_t Taille(Poignee poignee, std::error_code& raison) {
    LARGE_INTEGER taille = {};
    if (::GetFileSizeEx(Systeme(poignee), &taille) == 0)
        raison = DerniereErreur();
    return taille.QuadPart;
}

std::size_t Lire(Poignee poignee, std::int64_t position, std::span<char> tampon,
                 std::error_code& raison) {
    OVERLAPPED place = Place(position);
    DWORD lus = 0;
    if (::ReadFile(Systeme(poignee), tampon.data(), Longueur(tampon.size()), &lus, &place) != 0)
        return lus;
    if (::GetLastError() != ERROR_HANDLE_EOF)
        raison = DerniereErreur();
    return 0;
}

std::size_t Ecrire(Poignee poignee, std::int64_t position, std::span<const char> octets,
                   std::error_code& raison) {
    OVERLAPPED place = Place(position);
    DWORD ecrits = 0;
    if (::WriteFile(Systeme(poignee), octets.data(), Longueur(octets.size()), &ecrits, &place) == 0)
        raison = DerniereErreur();
    else if (ecrits == 0)
        raison = std::make_error_code(std::errc::no_space_on_device);
    return ecrits;
}

void Reserver(Poignee poignee, std::int64_t fin, std::error_code& raison) {
    HANDLE fichier = Systeme(poignee);
    FILE_STANDARD_INFO etat = {};
    if (::GetFileInformationByHandleEx(fichier, FileStandardInfo, &etat, sizeof etat) == 0) {
        raison = DerniereErreur();
        return;
    }
    // Less would cut the file, and a compressed or sparse one takes less room than it is long.
    if (fin <= std::max(etat.AllocationSize.QuadPart, etat.EndOfFile.QuadPart))
        return;
    std::error_code echec;
    PoserTaille(fichier, FileAllocationInfo, fin, echec);
    if (echec == std::errc::no_space_on_device)
        raison = echec;
}

void Synchroniser(Poignee poignee, std::error_code& raison) {
    // Refused for a file that may only be read, which has nothing to flush.
    if (::FlushFileBuffers(Systeme(poignee)) == 0 && ::GetLastError() != ERROR_ACCESS_DENIED &&
        ::GetLastError() != ERROR_INVALID_FUNCTION)
        raison = DerniereErreur();
}

void Raccourcir(Poignee poignee, std::int64_t taille, std::error_code& raison) {
    PoserTaille(Systeme(poignee), FileEndOfFileInfo, taille, raison);
}

// Who opened for reading only cannot keep writers off, but can tell whether there is one that does.
bool Verrouiller(Poignee poignee, bool lecture, std::error_code& /*raison*/) {
    if (!lecture)
        return true; // opening was the lock
    HANDLE essai = ::ReOpenFile(Systeme(poignee), GENERIC_WRITE, kPartageEntier, 0);
    if (essai == INVALID_HANDLE_VALUE)
        return ::GetLastError() != ERROR_SHARING_VIOLATION;
    ::CloseHandle(essai);
    return true;
}

bool EstLeMeme(Poignee poignee, const std::filesystem::path& autre) {
    BY_HANDLE_FILE_INFORMATION ici = {};
    BY_HANDLE_FILE_INFORMATION la = {};
    HANDLE autrePoignee =
        ::CreateFileW(autre.c_str(), FILE_READ_ATTRIBUTES, kPartageEntier, nullptr, OPEN_EXISTING,
                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (autrePoignee == INVALID_HANDLE_VALUE)
        return false;
    const bool lus = Identifier(Systeme(poignee), ici) && Identifier(autrePoignee, la);
    ::CloseHandle(autrePoignee);
    return lus && ici.dwVolumeSerialNumber == la.dwVolumeSerialNumber &&
           ici.nFileIndexHigh == la.nFileIndexHigh && ici.nFileIndexLow == la.nFileIndexLow;
}

namespace {

// A target that is open or mapped is refused as "access denied" like one that this user may not
// touch; which of both it is shows when it is opened in order to remove it.
bool EstOuvertAilleurs(const std::filesystem::path& chemin) {
    HANDLE poignee = ::CreateFileW(chemin.c_str(), DELETE, kPartageEntier, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
    if (poignee == INVALID_HANDLE_VALUE)
        return ::GetLastError() == ERROR_SHARING_VIOLATION;
    ::CloseHandle(poignee);
    return false;
}

} // namespace

void Renommer(const std::filesystem::path& ancien, const std::filesystem::path& nouveau,
              std::error_code& raison) {
    raison.clear();
    if (::MoveFileExW(ancien.c_str(), nouveau.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
        return;
    raison = DerniereErreur();
    if (raison == std::errc::permission_denied && EstOuvertAilleurs(nouveau))
        raison = std::make_error_code(std::errc::device_or_resource_busy);
}

void SynchroniserDossier(const std::filesystem::path& /*dossier*/, std::error_code& /*raison*/) {
    // The system writes names to its journal by itself.
}

namespace {

struct Equivalence {
    DWORD code;
    std::errc commune;
};

constexpr std::array kEquivalences = std::to_array<Equivalence>({
    {ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    {ERROR_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_PRIVILEGE_NOT_HELD, std::errc::operation_not_permitted},
    {ERROR_NOT_ENOUGH_MEMORY, std::errc::not_enough_memory},
    {ERROR_OUTOFMEMORY, std::errc::not_enough_memory},
    {ERROR_COMMITMENT_LIMIT, std::errc::not_enough_memory},
    {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    {ERROR_CRC, std::errc::io_error},
    {ERROR_SEEK, std::errc::io_error},
    {ERROR_SECTOR_NOT_FOUND, std::errc::io_error},
    {ERROR_WRITE_FAULT, std::errc::io_error},
    {ERROR_READ_FAULT, std::errc::io_error},
    {ERROR_GEN_FAILURE, std::errc::io_error},
    {ERROR_IO_DEVICE, std::errc::io_error},
    {ERROR_DISK_CORRUPT, std::errc::io_error},
    {ERROR_FILE_CORRUPT, std::errc::io_error},
    {ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_USER_MAPPED_FILE, std::errc::device_or_resource_busy},
    {ERROR_DELETE_PENDING, std::errc::device_or_resource_busy},
    {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_NOT_SUPPORTED, std::errc::no_such_device},
    {ERROR_INVALID_FUNCTION, std::errc::no_such_device},
    {ERROR_FILE_EXISTS, std::errc::file_exists},
    {ERROR_ALREADY_EXISTS, std::errc::file_exists},
    {ERROR_DIRECTORY, std::errc::not_a_directory},
    {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    {ERROR_BUFFER_OVERFLOW, std::errc::filename_too_long},
    {ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    {ERROR_CANT_RESOLVE_FILENAME, std::errc::too_many_symbolic_link_levels},
});

} // namespace

std::error_code Commune(const std::error_code& raison) {
    if (raison.category() != std::system_category())
        return raison;
    const auto* ici =
        std::find_if(kEquivalences.begin(), kEquivalences.end(), [&](const Equivalence& e) {
            return static_cast<int>(e.code) == raison.value();
        });
    return ici == kEquivalences.end() ? raison : std::make_error_code(ici->commune);
}

std::span<const RaisonMotivee> RaisonsPropres() {
    // Numbers that not every header of the system has.
    constexpr int kAntivirus = 225;
    constexpr int kQuota = 1295;
    static constexpr std::array kRaisons = std::to_array<RaisonMotivee>({
        {ERROR_INVALID_DRIVE, "ce lecteur n'existe pas"},
        {ERROR_NOT_READY, "il n'y a pas de support dans le lecteur",
         "Mettez-en un, puis recommencez."},
        {ERROR_WRONG_DISK, "ce n'est pas le bon support qui est dans le lecteur"},
        {ERROR_UNRECOGNIZED_MEDIA, "le support n'est pas formaté"},
        {ERROR_UNRECOGNIZED_VOLUME, "le support n'est pas formaté"},
        {ERROR_BAD_NETPATH, "cet ordinateur ou ce partage du réseau ne répond pas"},
        {ERROR_BAD_NET_NAME, "cet ordinateur ou ce partage du réseau ne répond pas"},
        {ERROR_NETNAME_DELETED, "la liaison au réseau est coupée"},
        {ERROR_UNEXP_NET_ERR, "la liaison au réseau est coupée"},
        {ERROR_INVALID_NAME, "ce nom a un caractère que Windows n'accepte pas",
         "Choisissez un autre nom."},
        {ERROR_BAD_PATHNAME, "ce nom a un caractère que Windows n'accepte pas",
         "Choisissez un autre nom."},
        {kAntivirus, "l'antivirus le refuse", "Voyez ce que dit l'antivirus."},
        {kQuota, "l'espace disque accordé est épuisé",
         "Libérez de la place ou choisissez un autre disque."},
    });
    return kRaisons;
}

std::filesystem::path LecteurDuSysteme() {
    std::array<wchar_t, MAX_PATH> dossier = {};
    const UINT taille = ::GetSystemWindowsDirectoryW(dossier.data(), MAX_PATH);
    return taille > 2 && dossier[1] == L':' ? std::wstring(dossier.data(), 2) + L'\\' : L"C:\\";
}

bool EstAmovible(const std::filesystem::path& racine) {
    const UINT genre = ::GetDriveTypeW(std::filesystem::path(racine).make_preferred().c_str());
    return genre == DRIVE_REMOVABLE || genre == DRIVE_CDROM;
}

} // namespace noyau
} // namespace orvalis

#endif
