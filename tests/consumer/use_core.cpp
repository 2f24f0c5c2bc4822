// Links against the core alone: the include folder, the symbols and the exceptions must arrive.
#include <cstdio>
#include <tern7/core/global/field_types.h>

int main() {
    const auto type = tern7::StrToFldType("ftstring");
    if (!type || tern7::FldTypeToStr(*type) != "ftString") return 1;
    std::puts("core found");
    return 0;
}
