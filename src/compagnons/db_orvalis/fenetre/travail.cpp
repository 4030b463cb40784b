#include "compagnons/db_orvalis/fenetre/travail.h"

#include <utility>

namespace orvalis {

Travail::~Travail() {
    if (fil_.joinable())
        fil_.join(); // a file that is being written gets its name, or none is left
}

void Travail::Lancer(std::function<void()> faire, std::function<void(std::exception_ptr)> finir) {
    if (fil_.joinable())
        fil_.join();
    fil_ = std::thread([this, faire = std::move(faire), finir = std::move(finir)] {
        std::exception_ptr faute;
        try {
            faire();
        } catch (...) {
            faute = std::current_exception();
        }
        QMetaObject::invokeMethod(
            this, [finir, faute] { finir(faute); }, Qt::QueuedConnection);
    });
}

} // namespace orvalis
