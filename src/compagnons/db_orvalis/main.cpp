#include "compagnons/db_orvalis/commande.h"

#include <cstdlib>
#include <iostream>
#include <vector>

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    const char* maison = std::getenv("HOME");
    std::error_code erreur;
    return static_cast<int>(orvalis::ExecuterCommande(
        arguments, {std::filesystem::current_path(erreur), maison == nullptr ? "/" : maison,
                    std::cout, std::cerr}));
}
