#include "adapters/commands/usage.h"

#include <ostream>

namespace commands {

const char* Usage() {
    return "使い方 / usage:\n"
           "  parapico [--trace FILE] [DOCUMENT]\n"
           "  parapico --inspect FILE\n"
           "  parapico --resave IN OUT [--distribution]\n"
           "  parapico --check [--json] [--screen WxH] FILE...\n"
           "  parapico --manual [--code-page] [FILE]\n"
           "  parapico --robot SCRIPT [--trace FILE] [--app-folder DIR] [--seed N]\n"
           "           [--now \"YYYY-MM-DD hh:mm:ss\"] [--screen WxH[,WxH…]]\n"
           "           [--cd m:ss[,m:ss…]] [--prepare on|off] [--title] [DOCUMENT]\n"
           "画面がなくても動くもの / need no display: --inspect --resave --check --manual --robot\n"
           "詳しくは / more: man parapico\n";
}

int RunHelp(const std::vector<std::string>&, std::ostream& out, std::ostream&) {
    out << Usage();
    return 0;
}

}  // namespace commands
