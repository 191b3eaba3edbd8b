// write_macro_manual FILE: writes the manual of the macro language, as it is shipped.
#include <cstdio>
#include <fstream>

#include "adapters/posix/iconv_code_page.h"
#include "macro/manual.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: macro_manual FILE\n");
        return 2;
    }
    const posix_adapter::IconvCodePage codePage;
    const auto bytes = codePage.Encode(macro::Manual());
    if (!bytes) {
        std::fprintf(stderr, "macro_manual: a character has no form in the code page\n");
        return 1;
    }
    std::ofstream file(argv[1], std::ios::binary);
    file << *bytes;
    if (!file.flush()) {
        std::fprintf(stderr, "macro_manual: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
