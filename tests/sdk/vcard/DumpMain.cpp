// Usage: vcard_dump FILE  Shows what is read of a file of vCards.
//        vcard_dump --made VERSION TEXT...  Writes one card a text, each with it as FN, N, NOTE and CATEGORIES.

#include <cstdio>
#include <cstring>

#include "Dump.h"
#include "vcard/CardWriter.h"

using namespace orva;

int main(int argc, char** argv)
{
    if (argc == 2) {
        std::ifstream in(argv[1], std::ios::binary);
        bool good = static_cast<bool>(in);
        std::fputs(dump::cards(in,
                               [&good](const Finding& finding) {
                                   good = false;
                                   std::fprintf(stderr, "%d: %s\n", finding.line, findingText(finding.reason));
                               })
                       .c_str(),
                   stdout);
        return good ? 0 : 1;
    }
    if (argc < 3 || std::strcmp(argv[1], "--made") != 0)
        return 2;
    const CardVersion version = std::strcmp(argv[2], "2.1") == 0   ? CardVersion::V21
                                : std::strcmp(argv[2], "3.0") == 0 ? CardVersion::V30
                                                                   : CardVersion::V40;
    std::string out;
    for (int i = 3; i < argc; ++i) {
        Card card = Card::empty(version);
        for (const char* name : {"FN", "NOTE"}) {
            card.properties.emplace_back(name);
            setCardText(card.properties.back(), argv[i], version);
        }
        card.properties.emplace_back("N");
        setCardComponents(card.properties.back(), {argv[i], "Given", "", "", ""}, version);
        appendCard(card, out);
    }
    std::fputs(out.c_str(), stdout);
    return 0;
}
