// What is kept with a record, property by property.

#include "Phonebook.h"
#include "orva/orva_care.h"

using namespace phonebook;

namespace
{

constexpr char lines[] = "ADR;TYPE=HOME:;;1 Main\\, Street;Town;;;\r\n"
                         "NOTE:one\\ntwo\r\n"
                         "PHOTO;ENCODING=b:AAAA\r\n";

void* keeping()
{
    void* record = nullptr;
    CHECK_EQ(newRecord(local, {{"Name", u"Anna"}}, &record), ORVA_OK);
    CHECK_EQ(ORVA_Care_SetKept(record, lines, sizeof lines - 1), ORVA_OK);
    return record;
}

std::string keptOf(void* record)
{
    char* text = nullptr;
    int octets = 0;
    CHECK_EQ(ORVA_Care_GetKept(record, &text, &octets), ORVA_OK);
    const std::string kept(text, static_cast<std::size_t>(octets));
    delete[] text;
    return kept;
}

long set(void* record, int index, const char* name, const Text& value)
{
    return ORVA_Care_SetKeptProperty(record, index, name, api(value));
}

} // namespace

TEST(propertiesAreReadAsTexts)
{
    useFreshFolder();
    void* record = keeping();
    ORVA_KEPT_PROPERTY property = {};
    CHECK_EQ(ORVA_Care_GetKeptProperty(record, 0, &property), ORVA_OK);
    CHECK(take(property.head) == u"ADR;TYPE=HOME");
    CHECK(take(property.value) == u"\n\n1 Main, Street\nTown\n\n\n");
    CHECK_EQ(property.octets, 0);
    CHECK_EQ(ORVA_Care_GetKeptProperty(record, 1, &property), ORVA_OK);
    CHECK(take(property.head) == u"NOTE");
    CHECK(take(property.value) == u"one\ntwo");
    CHECK_EQ(ORVA_Care_GetKeptProperty(record, 2, &property), ORVA_OK);
    take(property.head);
    CHECK(take(property.value) == u"AAAA");
    CHECK_EQ(property.octets, 1);
    CHECK_EQ(ORVA_Care_GetKeptProperty(record, 3, &property), ORVA_E_END);
    CHECK_EQ(ORVA_Care_GetKeptProperty(record, -1, &property), ORVA_E_ARGUMENT);
    ORVA_PBSrv_AddrRecord_Release(record);
}

TEST(whatWasReadGoesInAgainUnchanged)
{
    useFreshFolder();
    void* record = keeping();
    for (int i = 0; i < 2; ++i) {
        ORVA_KEPT_PROPERTY property = {};
        CHECK_EQ(ORVA_Care_GetKeptProperty(record, i, &property), ORVA_OK);
        take(property.head);
        CHECK_EQ(set(record, i, nullptr, take(property.value)), ORVA_OK);
    }
    CHECK_EQ(keptOf(record), std::string(lines));
    ORVA_PBSrv_AddrRecord_Release(record);
}

TEST(propertiesAreChangedAddedAndTakenAway)
{
    useFreshFolder();
    void* record = keeping();
    CHECK_EQ(set(record, 0, nullptr, u"\n\n2 Side Street; rear"), ORVA_OK);
    CHECK_EQ(set(record, 1, nullptr, u""), ORVA_OK);
    CHECK_EQ(set(record, -1, "BDAY", u"2001-02-03"), ORVA_OK);
    CHECK_EQ(keptOf(record),
             std::string("ADR;TYPE=HOME:;;2 Side Street\\; rear\r\nPHOTO;ENCODING=b:AAAA\r\nBDAY:2001-02-03\r\n"));
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK_EQ(ORVA_PBSrv_GetAddrRecord(id, local, &record), ORVA_OK);
    CHECK_EQ(set(record, 2, nullptr, u"2001-02-04"), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_UpdateAddrRec(record, id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK_EQ(ORVA_PBSrv_GetAddrRecord(id, local, &record), ORVA_OK);
    CHECK(keptOf(record).find("BDAY:2001-02-04") != std::string::npos);
    ORVA_PBSrv_AddrRecord_Release(record);
}

TEST(aNewRecordHasNothingOfOneThatWasReleased)
{
    useFreshFolder();
    void* record = keeping();
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK_EQ(ORVA_PBSrv_CreateAddrRecord(local, &record), ORVA_OK);
    CHECK_EQ(keptOf(record), "");
    unsigned short* name = nullptr;
    CHECK_EQ(ORVA_PBSrv_AddrRecord_GetValue(record, "Name", &name), ORVA_OK);
    CHECK_EQ(take(name), u"");
    ORVA_PBSrv_AddrRecord_Release(record);
    // One that stood for a stored record.
    CHECK_EQ(ORVA_PBSrv_GetAddrRecord(id, local, &record), ORVA_OK);
    CHECK_EQ(keptOf(record), lines);
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK_EQ(ORVA_PBSrv_CreateAddrRecord(local, &record), ORVA_OK);
    CHECK_EQ(keptOf(record), "");
    ORVA_PBSrv_AddrRecord_Release(record);
}

TEST(whatCannotBeKeptIsRefused)
{
    useFreshFolder();
    void* record = keeping();
    CHECK_EQ(set(record, -1, "TELL", u"1"), ORVA_E_ARGUMENT);
    CHECK_EQ(set(record, -1, nullptr, u"1"), ORVA_E_ARGUMENT);
    CHECK_EQ(set(record, -2, "TEL", u"1"), ORVA_E_ARGUMENT);
    CHECK_EQ(set(record, 3, nullptr, u"1"), ORVA_E_NOT_FOUND);
    CHECK_EQ(set(record, 2, nullptr, u"a photo"), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Care_SetKeptProperty(record, 0, nullptr, nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(keptOf(record), std::string(lines));
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK_EQ(newRecord(card, {{"Name", u"Anna"}}, &record), ORVA_OK);
    CHECK_EQ(set(record, -1, "TEL", u"1"), ORVA_E_UNSUPPORTED);
    ORVA_PBSrv_AddrRecord_Release(record);
}

CHECK_MAIN
