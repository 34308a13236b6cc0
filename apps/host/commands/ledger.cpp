#include "host/Command.h"
#include "host/Host.h"

#include <ostream>

namespace app {

namespace {

void ledger(Host& host, Arguments&) {
    nyx::embedded::Ledger const l = host.renderer().ledger();
    host.out() << "blocks " << l.blocks << ", arrays " << l.arrays << ", aligned "
               << l.alignedBlocks << ", texts " << l.texts << ", lock depth " << l.lockDepth
               << ", strings " << l.strings << '\n';
}

constexpr Command table[] = {
    {"ledger", "", "show what the renderer has lent out", "ledger", ledger},
};

} // namespace

Family ledgerFamily() { return {"what the renderer has lent out", table}; }

} // namespace app
