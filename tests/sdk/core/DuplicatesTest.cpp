// Who is there twice, and who would be.

#include "Phonebook.h"
#include "orva/orva_care.h"

using namespace phonebook;

namespace
{

// The record that is found for some fields; 0 for none, below 0 a code.
int find(void* match, const Fields& fields, int memory = local)
{
    void* record = nullptr;
    int id = 0;
    CHECK_EQ(newRecord(memory, fields, &record), ORVA_OK);
    const long code = ORVA_Care_Match_Find(match, record, &id);
    ORVA_PBSrv_AddrRecord_Release(record);
    return code == ORVA_OK ? id : code == ORVA_E_NOT_FOUND ? 0 : -static_cast<int>(code);
}

std::vector<ORVA_DUPLICATE> duplicates(int memory = local)
{
    ORVA_DUPLICATE* entries = nullptr;
    int count = -1;
    CHECK_EQ(ORVA_Care_GetDuplicates(memory, &entries, &count), ORVA_OK);
    std::vector<ORVA_DUPLICATE> all(entries, entries + count);
    CHECK_EQ(ORVA_Care_DuplicatesRelease(memory, &entries), ORVA_OK);
    CHECK(entries == nullptr);
    return all;
}

} // namespace

TEST(aPersonIsFoundByNameAndOneNumberOrAddressHoweverWritten)
{
    useFreshFolder();
    const int zoe = add(local, {{"Name", u"Zo\u00eb"}, {"Mobile", u"+491715551234"}, {"email", u"z@example.org"}});
    void* match = nullptr;
    REQUIRE(ORVA_Care_CreateMatch(local, &match) == ORVA_OK);
    CHECK_EQ(find(match, {{"Name", u"ZOE\u0308"}, {"homePhone", u"0049 (171) 555-1234"}}), zoe);
    CHECK_EQ(find(match, {{"Name", u"zo\u00eb"}, {"email", u"Z@Example.ORG"}, {"Mobile", u"1"}}), zoe);
    CHECK_EQ(find(match, {{"Name", u"zo\u00eb"}}), 0);
    CHECK_EQ(find(match, {{"Name", u"Max"}, {"Mobile", u"+491715551234"}}), 0);
    CHECK_EQ(find(match, {{"Name", u"zo\u00eb"}, {"Mobile", u"no number"}}), 0);
    CHECK_EQ(find(match, {}), 0);
    // Only what was there when it was made.
    add(local, {{"Name", u"late"}, {"Mobile", u"1"}});
    CHECK_EQ(find(match, {{"Name", u"late"}, {"Mobile", u"1"}}), 0);
    CHECK_EQ(ORVA_Care_Match_Release(match), ORVA_OK);
}

TEST(theSameInEveryFieldGoesBeforeTheSamePerson)
{
    useFreshFolder();
    add(local, {{"Name", u"A"}, {"Mobile", u"1"}, {"email", u"a@example.org"}});
    const int second = add(local, {{"Name", u"A"}, {"Mobile", u"2"}, {"email", u"a@example.org"}});
    const int nameless = add(local, {{"Mobile", u"7"}});
    const int lonely = add(local, {{"Name", u"Bo"}, {"remark", u"x"}});
    void* match = nullptr;
    REQUIRE(ORVA_Care_CreateMatch(local, &match) == ORVA_OK);
    CHECK_EQ(find(match, {{"Name", u"a"}, {"Mobile", u"2"}, {"email", u"A@example.org"}}), second);
    CHECK_EQ(find(match, {{"Mobile", u"7"}}), nameless);
    CHECK_EQ(find(match, {{"Name", u"bo"}, {"remark", u"X"}}), lonely);
    ORVA_Care_Match_Release(match);
}

TEST(aMatchOfNothingOrOfAnotherMemoryGivesACode)
{
    useFreshFolder();
    void* match = nullptr;
    void* record = nullptr;
    int id = 0;
    CHECK_EQ(ORVA_Care_CreateMatch(7, &match), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_CreateMatch(local, nullptr), ORVA_E_ARGUMENT);
    REQUIRE(ORVA_Care_CreateMatch(card, &match) == ORVA_OK);
    CHECK_EQ(find(match, {{"Name", u"A"}}), -static_cast<int>(ORVA_E_ARGUMENT));
    CHECK_EQ(find(match, {{"Name", u"A"}}, card), 0);
    REQUIRE(newRecord(card, {{"Name", u"A"}}, &record) == ORVA_OK);
    CHECK_EQ(ORVA_Care_Match_Find(match, record, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_Match_Find(record, record, &id), ORVA_E_HANDLE);
    CHECK_EQ(ORVA_Care_Match_Find(match, match, &id), ORVA_E_HANDLE);
    CHECK_EQ(ORVA_Care_Match_Release(record), ORVA_E_HANDLE);
    CHECK_EQ(ORVA_Care_Match_Release(match), ORVA_OK);
    CHECK_EQ(ORVA_Care_Match_Release(match), ORVA_E_HANDLE);
    ORVA_PBSrv_AddrRecord_Release(record);
    ORVA_Sim_SetCard(0);
    CHECK_EQ(ORVA_Care_CreateMatch(card, &match), ORVA_E_ABSENT);
}

TEST(thoseWhoSoundAlikeAreNoDuplicates)
{
    useFreshFolder();
    add(local, {{"Name", u"A"}, {"Mobile", u"1"}});
    add(local, {{"Name", u"AB"}, {"Mobile", u"2"}});
    add(local, {{"Name", u"a"}, {"Mobile", u"3"}});
    CHECK(duplicates().empty());
    const int same = add(local, {{"Name", u"a"}, {"officePhone", u"1"}});
    const auto found = duplicates();
    REQUIRE(found.size() == 2);
    CHECK_EQ(found[1].record, same);
    CHECK_EQ(found[0].set, 1);
    CHECK_EQ(found[0].kind, ORVA_DUPLICATE_SAME);
}

CHECK_MAIN
