// What fits into a field, and how that is counted.

#include "Phonebook.h"

using namespace phonebook;

TEST(aValueThatDoesNotFitIsRefusedWhole)
{
    useFreshFolder();
    CHECK_EQ(tryAdd(local, {{"Name", Text(100, u'n')}, {"Mobile", Text(40, u'1')}, {"remark", Text(500, u'r')}}), 1);
    CHECK_EQ(tryAdd(local, {{"Name", Text(101, u'n')}}), -ORVA_E_TOO_LONG);
    CHECK_EQ(tryAdd(local, {{"remark", Text(501, u'n')}}), -ORVA_E_TOO_LONG);
    CHECK_EQ(update(local, 1, {{"Mobile", Text(41, u'1')}}), ORVA_E_TOO_LONG);
    CHECK_EQ(valueOf(local, 1, "Mobile"), Text(40, u'1'));
    CHECK_EQ(tryAdd(local, {{"Name", Text(70000, u'n')}}), -ORVA_E_TOO_LONG);
}

TEST(aCardCountsANameAsItStoresIt)
{
    useFreshFolder();
    CHECK(tryAdd(card, {{"Name", Text(14, u'n')}, {"Number", Text(20, u'1')}}) > 0);
    CHECK_EQ(tryAdd(card, {{"Name", Text(15, u'n')}}), -ORVA_E_TOO_LONG);
    CHECK_EQ(tryAdd(card, {{"Number", Text(21, u'1')}}), -ORVA_E_TOO_LONG);
    // Seven of the extension table fill it, and six characters of different half-pages with their header octet.
    CHECK(tryAdd(card, {{"Name", Text(7, u'{')}}) > 0);
    CHECK_EQ(tryAdd(card, {{"Name", Text(8, u'{')}}), -ORVA_E_TOO_LONG);
    CHECK(tryAdd(card, {{"Name", u"\x4e2d\x5e2d\x6e2d\x7e2d\x8e2d\x9e2d"}}) > 0);
    CHECK_EQ(tryAdd(card, {{"Name", u"\x4e2d\x5e2d\x6e2d\x7e2d\x8e2d\x9e2d\x4e2d"}}), -ORVA_E_TOO_LONG);
    // A device counts characters.
    CHECK(tryAdd(device, {{"Name", Text(30, u'\x4e2d')}}) > 0);
}

TEST(aCardTakesNamesByTheCountOfACustomisedProduct)
{
    const std::string data = useFreshFolder();
    const Text varied = u"\x4e2d\x5e2d\x6e2d\x7e2d\x8e2d\x9e2d\x4e2d";
    REQUIRE(ORVA_Sim_SetNameUnits(1) == ORVA_OK);
    CHECK(tryAdd(card, {{"Name", varied}}) > 0);
    CHECK_EQ(tryAdd(card, {{"Name", Text(15, u'n')}}), -ORVA_E_TOO_LONG);
    // Also for the next process.
    REQUIRE(ORVA_Sim_Reset(data.c_str()) == ORVA_OK);
    CHECK(tryAdd(card, {{"Name", varied}}) > 0);
    REQUIRE(ORVA_Sim_SetNameUnits(0) == ORVA_OK);
    CHECK_EQ(tryAdd(card, {{"Name", varied}}), -ORVA_E_TOO_LONG);
}

TEST(countingATextChangesNothing)
{
    useFreshFolder();
    const Text varied = u"\x4e2d\x5e2d\x6e2d\x7e2d\x8e2d\x9e2d\x4e2d";
    short length = 0;
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(varied), 7, true, true, &length), ORVA_OK);
    CHECK_EQ(length, 7);
    CHECK_EQ(tryAdd(card, {{"Name", varied}}), -ORVA_E_TOO_LONG);
    REQUIRE(ORVA_Sim_SetNameUnits(1) == ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_PBContentCodingJudge(api(varied), 7, true, false, &length), ORVA_OK);
    CHECK_EQ(length, 15);
    CHECK(tryAdd(card, {{"Name", varied}}) > 0);
}

CHECK_MAIN
