// How long texts count on a card.

#include "coding/AlphaIdentifier.h"

#include <algorithm>
#include <random>

#include "AlphaForms.h"
#include "support/Check.h"

using namespace orva;

namespace
{

int sim(std::u16string_view text)
{
    return alphaLength(text, AlphaRule::Sim);
}

// The shortest form that the tests' own encoder finds, each form having been read back.
int shortestEncoded(const std::u16string& text)
{
    std::size_t best = SIZE_MAX;
    for (const forms::Octets& octets : forms::encodeAll(text)) {
        CHECK_EQ(forms::decode(octets), text);
        best = std::min(best, octets.size());
    }
    return static_cast<int>(best);
}

std::u16string repeated(std::u16string_view text, int times)
{
    std::u16string out;
    for (int i = 0; i < times; ++i)
        out += text;
    return out;
}

struct Row {
    const char* what;
    std::u16string text;
    int sim;
    int uim;
    int units;
};

} // namespace

TEST(everyCharacterOfTheDefaultAlphabetCountsOne)
{
    for (std::size_t code = 0; code < forms::alphabet().size(); ++code) {
        if (code == 0x1B)
            continue;
        const std::u16string text(1, forms::alphabet()[code]);
        CHECK_EQ(sim(text), 1);
        CHECK_EQ(gsmOctets(text[0]), 1);
        CHECK_EQ(shortestEncoded(text), 1);
    }
}

TEST(everyCharacterOfTheExtensionCountsTwo)
{
    for (const forms::Extension& e : forms::extensions()) {
        const std::u16string text(1, e.character);
        CHECK_EQ(sim(text), 2);
        CHECK_EQ(gsmOctets(e.character), 2);
        CHECK_EQ(shortestEncoded(text), 2);
    }
}

TEST(noOtherCharacterIsInTheAlphabet)
{
    int inAlphabet = 0;
    for (unsigned c = 0; c <= 0xFFFF; ++c)
        inAlphabet += gsmOctets(static_cast<char16_t>(c)) != 0 ? 1 : 0;
    CHECK_EQ(inAlphabet, 127 + 9);
}

TEST(formFeedAndEscapeAreNoText)
{
    CHECK_EQ(gsmOctets(u'\f'), 0);
    CHECK_EQ(gsmOctets(u'\x1B'), 0);
    CHECK_EQ(sim(u"\f"), 3);
    CHECK_EQ(sim(u"ab\x1B"), 6);
}

TEST(textsCountAsTheTableSays)
{
    const std::vector<Row> rows = {
        {"nothing", u"", 0, 0, 0},
        {"plain", u"Anna Berg", 9, 9, 9},
        {"fourteen plain", u"ABCDEFGHIJKLMN", 14, 14, 14},
        {"Latin of the alphabet", u"Jörg Müßig", 10, 21, 10},
        {"Latin outside it: one page", u"François", 11, 17, 8},
        {"one foreign letter", u"č", 3, 3, 1},
        {"two of them: 80 and 81 are even", u"čš", 5, 5, 2},
        {"three of them: 81 is shorter", u"čšž", 6, 7, 3},
        {"backtick", u"`", 3, 1, 1},
        {"brackets", u"[x]", 5, 3, 3},
        {"euro", u"5 €", 4, 7, 3},
        {"Greek capitals of the alphabet", u"ΔΦΓΛΩΠΨΣΘΞ", 10, 21, 10},
        {"Greek", u"Αλέξης", 9, 13, 6},
        {"Cyrillic", u"Иван", 7, 9, 4},
        {"Cyrillic and digits", u"Иван 2", 9, 13, 6},
        {"Cyrillic and a bracket", u"Иван]", 9, 11, 5},
        {"Chinese, far apart", u"王小明", 7, 7, 3},
        {"Chinese, one page by chance", u"一丁七万", 7, 9, 4},
        {"Chinese above 8000, one page", u"\u9000\u9001\u9002\u9003\u9004", 9, 11, 5},
        {"Arabic", u"محمد", 7, 9, 4},
        {"Hebrew", u"דוד", 6, 7, 3},
        {"Thai", u"สมชาย", 8, 11, 5},
        {"emoji: two units", u"😀", 5, 5, 2},
        {"emoji and text", u"Bo 😀", 11, 11, 5},
        {"a lone surrogate", std::u16string(1, u'\xD83D'), 3, 3, 1},
    };
    for (const Row& row : rows) {
        const bool ok = CHECK_EQ(alphaLength(row.text, AlphaRule::Sim), row.sim) &
                        CHECK_EQ(alphaLength(row.text, AlphaRule::Uim), row.uim) &
                        CHECK_EQ(alphaLength(row.text, AlphaRule::Units), row.units) &
                        CHECK_EQ(shortestEncoded(row.text), row.sim);
        if (!ok)
            std::fprintf(stderr, "    in: %s\n", row.what);
    }
}

TEST(halfPageBordersDecideTheForm)
{
    // 0100..017F is a page of form 81; two characters on both sides of its end need form 82.
    CHECK_EQ(sim(u"\u0100\u0110\u017F"), 3 + 3);
    CHECK_EQ(sim(u"\u0110\u017F\u0180"), 1 + 6);       // 82 is 4 + 3: even
    CHECK_EQ(sim(u"\u0110\u017F\u0180\u0181"), 4 + 4); // 82 is shorter than 1 + 8
    CHECK_EQ(sim(u"\u0101\u0102\u0103\u0180"), 4 + 4); // 127 apart: one page of form 82
    CHECK_EQ(sim(u"\u0100\u0102\u0103\u0180"), 1 + 8); // 128 apart: none
    CHECK_EQ(sim(u"\u7F80\u7F81\u7FFF"), 3 + 3);       // the last page of form 81
    CHECK_EQ(sim(u"\u8000\u8001\u807F"), 1 + 6);       // beyond it: 82 is even with 80
    CHECK_EQ(sim(u"\u8000\u8001\u8002\u807F"), 4 + 4); // and here shorter
    CHECK_EQ(sim(u"\u7FFE\u7FFF\u8000\u8001"), 4 + 4); // across the border
    CHECK_EQ(sim(u"\uFF90\uFF91\uFFFE\uFFFF"), 4 + 4); // the last page of all
    CHECK_EQ(sim(u"č[]{}"), 1 + 10);                   // 81 would be 3 + 1 + 8
    CHECK_EQ(sim(u"čaaaaaaaa[]"), 3 + 9 + 4);          // 80 would be 1 + 22
    for (const char16_t* text : {u"\u0110\u017F\u0180\u0181", u"\u8000\u8001\u8002\u807F", u"\u7FFE\u7FFF\u8000\u8001",
                                 u"\uFF90\uFF91\uFFFE\uFFFF", u"čaaaaaaaa[]", u"č[]{}"})
        CHECK_EQ(sim(text), shortestEncoded(text));
}

TEST(halfPageFormsEndAtTheirCountOctet)
{
    CHECK_EQ(sim(repeated(u"ж", 255)), 3 + 255);
    CHECK_EQ(sim(repeated(u"ж", 256)), 1 + 512);
    CHECK_EQ(sim(repeated(u"[", 127) + u"ж"), 1 + 256); // form 81 would take 3 + 255
}

TEST(everyLengthUpToAHundredCounts)
{
    for (int n = 0; n <= 100; ++n) {
        CHECK_EQ(sim(repeated(u"a", n)), n);
        CHECK_EQ(sim(repeated(u"€", n)), 2 * n);
        CHECK_EQ(sim(repeated(u"ж", n)), n == 0 ? 0 : n == 1 ? 3 : 3 + n);
        CHECK_EQ(sim(repeated(u"😀", n)), n == 0 ? 0 : 1 + 4 * n);
        CHECK_EQ(sim(repeated(u"王小", n)), n == 0 ? 0 : 1 + 4 * n);
        CHECK_EQ(alphaLength(repeated(u"ж", n), AlphaRule::Uim), n == 0 ? 0 : 1 + 2 * n);
        CHECK_EQ(alphaLength(repeated(u"a", n), AlphaRule::Uim), n);
        CHECK_EQ(alphaLength(repeated(u"ж", n), AlphaRule::Units), n);
        CHECK_EQ(alphaLength(repeated(u"😀", n), AlphaRule::Units), 2 * n);
    }
}

TEST(mixturesCountAsTheyAreEncoded)
{
    const std::vector<std::u16string> pools = {u"abc XYZ019", u"[]{}^~|\\€", u"čšžłđ", u"жшщИВАН",
                                               u"αβγδΔΦ",     u"王小明李",   u"محمد",  u"\u7FFE\u7FFF\u8000\u8001",
                                               u"\f\x1B`",    u"😀🎉"};
    std::mt19937 random(20);
    for (int round = 0; round < 5000; ++round) {
        const std::u16string pool = pools[random() % pools.size()] + pools[random() % pools.size()];
        std::u16string text;
        for (unsigned n = random() % 30; n > 0; --n)
            text.push_back(pool[random() % pool.size()]);
        if (!CHECK_EQ(sim(text), shortestEncoded(text)))
            return;
    }
}

TEST(cuttingCharactersOffNeverMakesATextLonger)
{
    const std::u16string pool = u"aZ9 äéü€[]{}čšжшαΔ王小\u7FFF\u8000\f😀";
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        std::u16string text;
        for (int n = 0; n < 60; ++n)
            text.push_back(pool[random() % pool.size()]);
        for (const AlphaRule rule : {AlphaRule::Sim, AlphaRule::Uim, AlphaRule::Units}) {
            int last = alphaLength(text, rule);
            for (std::size_t n = text.size(); n-- > 0;) {
                const int now = alphaLength(std::u16string_view(text).substr(0, n), rule);
                CHECK(now <= last);
                last = now;
            }
            CHECK_EQ(last, 0);
        }
    }
}

CHECK_MAIN
