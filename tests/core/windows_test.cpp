// What only Windows does otherwise: sharing of files, names, reasons, the end of a program.
#ifdef _WIN32
#include "aides.h"
#include "core/chemins.h"
#include "core/remplacement.h"
#include "maint/tri.h"

#include <set>
#include <thread>
#include <windows.h>

namespace orvalis::aides::windows {

namespace fs = std::filesystem;
using namespace testing;

// A file held open as another program does.
struct Tenu {
    HANDLE poignee;
    Tenu(const fs::path& chemin, DWORD acces, DWORD partage)
        : poignee(
              ::CreateFileW(chemin.c_str(), acces, partage, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    Tenu(const Tenu&) = delete;
    Tenu& operator=(const Tenu&) = delete;
    ~Tenu() { ::CloseHandle(poignee); }
};

TEST(Windows, OuvrirEnEcritureEstLeVerrou) {
    const Dossier dossier;
    const auto chemin = dossier.Poser("F5ABC.Vek", Contact("A") + Fin());
    const auto ouvrir = [&] { static_cast<void>(Ouvrir(chemin)); };
    {
        const Cahier cahier = Ouvrir(chemin);
        EXPECT_THAT(ouvrir, ThrowsMessage<Erreur>(HasSubstr("déjà ouvert par un autre programme")));
        EXPECT_EQ(Fichier(chemin, ModeFichier::Lecture).Taille(), 330);
        EXPECT_THAT([&] { RemplacerFichier(chemin, "x"); },
                    ThrowsMessage<Erreur>(HasSubstr("est utilisé par un autre programme")));
        EXPECT_EQ(Lire(chemin), Contact("A") + Fin());
        EXPECT_FALSE(fs::exists(dossier / "F5ABC.Vek.tmp"));
    }
    {
        const Fichier lecteur(chemin, ModeFichier::Lecture);
        EXPECT_NO_THROW(ouvrir()) << "who only reads hinders nobody";
    }
    {
        const Tenu tenu(chemin, GENERIC_READ, 0);
        EXPECT_THAT(ouvrir, ThrowsMessage<Erreur>(HasSubstr("est utilisé par un autre programme")));
    }
    // Whoever looks at the file for a moment is waited for.
    auto* passant = new Tenu(chemin, GENERIC_READ, 0);
    std::thread fin([passant] {
        ::Sleep(300);
        delete passant;
    });
    EXPECT_NO_THROW(ouvrir());
    fin.join();
}

TEST(Windows, CheminsEtRaisons) {
    for (const auto& [texte, montre] :
         Textes{{"C:/Orvalis/\u00e9t\u00e9.Vek", "C:\\Orvalis\\\u00e9t\u00e9.Vek"},
                {"\u03a9\\\u4e2d", "\u03a9\\\u4e2d"},
                {"", ""}})
        EXPECT_EQ(TexteChemin(CheminTexte(texte)), montre);
    EXPECT_EQ(TexteChemin(fs::path(std::wstring(1, L'\xD800'))), "\uFFFD");
    for (const auto& [code, dit] : std::map<DWORD, std::string>{
             {ERROR_FILE_NOT_FOUND, "le fichier n'existe pas"},
             {ERROR_SHARING_VIOLATION, "le fichier est utilisé par un autre programme"},
             {ERROR_USER_MAPPED_FILE, "le fichier est utilisé par un autre programme"},
             {ERROR_DISK_FULL, "le disque est plein"},
             {ERROR_NOT_READY, "il n'y a pas de support dans le lecteur"},
             {ERROR_NETNAME_DELETED, "la liaison au réseau est coupée"},
             {4711, "erreur n°\u00a04711 du système"}})
        EXPECT_EQ(RaisonFrancaise({static_cast<int>(code), std::system_category()}), dit);
    EXPECT_THAT([] { Fichier("NUL", ModeFichier::Lecture); },
                ThrowsMessage<Erreur>(HasSubstr("périphérique")));
}

// A logbook to be sorted, and how it is then.
std::pair<std::string, std::string> CahierMele() {
    std::string mele, avant, apres;
    for (int i = 0; i < 1200; ++i) {
        const bool premier = i % 3 == 0;
        const std::string fiche = Contact(std::to_string(i), premier ? "01/01/01" : "01/01/02");
        mele += fiche;
        (premier ? avant : apres) += fiche;
    }
    return {mele + Fin(), avant + apres + Fin()};
}

// Sorts until it is killed; started by the test below.
TEST(Windows, DISABLED_Trieur) {
    const fs::path chemin = _wgetenv(L"ORVALIS_A_TRIER");
    Cahier cahier = Ouvrir(chemin);
    Tri tri(cahier);
    ::SetEvent(::OpenEventW(EVENT_MODIFY_STATE, FALSE, L"orvalis-trieur"));
    while (!tri.Etat().termine)
        tri.Avancer(1000);
    ::Sleep(INFINITE);
}

TEST(Windows, TuePendantUnTri) {
    const char* voulus = std::getenv("ORVALIS_TUES");
    const Dossier dossier;
    const auto chemin = dossier / "J.Vek";
    ::SetEnvironmentVariableW(L"ORVALIS_A_TRIER", chemin.c_str());
    HANDLE commence = ::CreateEventW(nullptr, FALSE, FALSE, L"orvalis-trieur");
    std::array<wchar_t, MAX_PATH> moi = {};
    ::GetModuleFileNameW(nullptr, moi.data(), MAX_PATH);
    const auto [attendu, trie] = CahierMele();
    const auto fiches = [](const std::string& octets) {
        std::multiset<std::string> toutes;
        for (std::size_t i = 0; i < octets.size(); i += kTailleFiche)
            toutes.insert(octets.substr(i, kTailleFiche));
        return toutes;
    };
    int entames = 0;
    for (int i = 0; i < (voulus == nullptr ? 10 : std::atoi(voulus)); ++i) {
        std::wstring ligne = L"\"" + std::wstring(moi.data()) +
                             L"\" --gtest_also_run_disabled_tests --gtest_filter=*Trieur";
        STARTUPINFOW depart = {};
        depart.cb = sizeof depart;
        PROCESS_INFORMATION enfant = {};
        dossier.Poser("J.Vek", attendu);
        ASSERT_TRUE(::CreateProcessW(nullptr, ligne.data(), nullptr, nullptr, FALSE,
                                     CREATE_NO_WINDOW, nullptr, nullptr, &depart, &enfant));
        ASSERT_EQ(::WaitForSingleObject(commence, 60000), WAIT_OBJECT_0);
        for (int tour = 0; tour < i % 97 * 1000; ++tour)
            ::SwitchToThread();
        ::TerminateProcess(enfant.hProcess, 1);
        ::WaitForSingleObject(enfant.hProcess, INFINITE);
        ::CloseHandle(enfant.hThread);
        ::CloseHandle(enfant.hProcess);
        const std::string octets = Lire(chemin);
        ASSERT_EQ(fiches(octets), fiches(attendu)) << "kill " << i;
        entames += octets != attendu && octets != trie ? 1 : 0;
    }
    EXPECT_GT(entames, 0) << "no kill struck while it sorted";
    ::CloseHandle(commence);
}

} // namespace orvalis::aides::windows
#endif
