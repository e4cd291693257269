// What is kept with a record beside its fields.

#include "Phonebook.h"
#include "RawStore.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"

using namespace phonebook;

namespace
{

constexpr char lines[] = "ADR;TYPE=HOME:;;1 Street;Town;;;\r\nPHOTO;ENCODING=b:AAAA\r\n";

// Stores a record with what is kept; its identifier.
int addKept(const Text& name, const std::string& kept)
{
    void* record = nullptr;
    CHECK_EQ(newRecord(local, {{"Name", name}}, &record), ORVA_OK);
    CHECK_EQ(ORVA_Care_SetKept(record, kept.data(), static_cast<int>(kept.size())), ORVA_OK);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    return id;
}

long updateKept(int id, const Text& name, const std::string& kept)
{
    void* record = nullptr;
    CHECK_EQ(newRecord(local, {{"Name", name}}, &record), ORVA_OK);
    CHECK_EQ(ORVA_Care_SetKept(record, kept.data(), static_cast<int>(kept.size())), ORVA_OK);
    const long updated = ORVA_PBSrv_UpdateAddrRec(record, id);
    ORVA_PBSrv_AddrRecord_Release(record);
    return updated;
}

std::string keptOf(void* record)
{
    char* text = nullptr;
    int octets = -1;
    if (ORVA_Care_GetKept(record, &text, &octets) != ORVA_OK)
        return "(failed)";
    const std::string kept(text, static_cast<std::size_t>(octets));
    CHECK_EQ(text[octets], '\0');
    delete[] text;
    return kept;
}

std::string kept(int id)
{
    void* record = nullptr;
    if (ORVA_PBSrv_GetAddrRecord(id, local, &record) != ORVA_OK)
        return "(none)";
    const std::string found = keptOf(record);
    ORVA_PBSrv_AddrRecord_Release(record);
    return found;
}

std::vector<int> binEntries()
{
    ORVA_BIN_ENTRY* entries = nullptr;
    int count = 0;
    std::vector<int> ids;
    CHECK_EQ(ORVA_Care_GetBin(local, &entries, &count), ORVA_OK);
    for (int i = 0; i < count; ++i)
        ids.push_back(entries[i].id);
    ORVA_Care_BinRelease(local, &entries);
    return ids;
}

std::string binKept(int entry)
{
    void* record = nullptr;
    REQUIRE(ORVA_Care_GetBinRecord(local, entry, &record) == ORVA_OK);
    const std::string found = keptOf(record);
    ORVA_PBSrv_AddrRecord_Release(record);
    return found;
}

} // namespace

TEST(whatIsKeptIsThereInTheNextProcessOctetForOctet)
{
    const std::string data = useFreshFolder();
    const std::string photo = "PHOTO:" + std::string(200000, 'A') + "\r\n" + std::string(1, '\0') + "\xff";
    const int anna = addKept(u"Anna", lines);
    const int bert = addKept(u"Bert", photo);
    const int carl = add(local, {{"Name", u"Carl"}});
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(kept(anna), lines);
    CHECK(kept(bert) == photo);
    CHECK_EQ(kept(carl), "");
}

TEST(anUpdateOfTheFieldsLeavesWhatIsKept)
{
    useFreshFolder();
    const int anna = addKept(u"Anna", lines);
    CHECK_EQ(update(local, anna, {{"Name", u"Anne"}}), ORVA_OK);
    CHECK_EQ(kept(anna), lines);
    CHECK_EQ(updateKept(anna, u"Anne", "ORG:Acme\r\n"), ORVA_OK);
    CHECK_EQ(kept(anna), "ORG:Acme\r\n");
    CHECK_EQ(updateKept(anna, u"Anne", ""), ORVA_OK);
    CHECK_EQ(kept(anna), "");
    CHECK_EQ(updateKept(anna + 1, u"none", lines), ORVA_E_NOT_FOUND);
}

TEST(theBinTakesWhatIsKeptAlongAndBringsItBack)
{
    const std::string data = useFreshFolder();
    const int anna = addKept(u"Anna", lines);
    // A change of both is one entry, and so is a change of what is kept alone; none is none.
    CHECK_EQ(updateKept(anna, u"Anne", "ORG:Acme\r\n"), ORVA_OK);
    REQUIRE(binEntries().size() == 1);
    CHECK_EQ(binKept(binEntries()[0]), lines);
    CHECK_EQ(updateKept(anna, u"Anne", "ORG:Other\r\n"), ORVA_OK);
    REQUIRE(binEntries().size() == 2);
    CHECK_EQ(binKept(binEntries()[0]), "ORG:Acme\r\n");
    CHECK_EQ(updateKept(anna, u"Anne", "ORG:Other\r\n"), ORVA_OK);
    CHECK_EQ(binEntries().size(), 2U);
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM kept"), "0");
    REQUIRE(binEntries().size() == 3);
    int id = 0;
    CHECK_EQ(ORVA_Care_Undelete(local, binEntries()[0], &id), ORVA_OK);
    CHECK_EQ(kept(id), "ORG:Other\r\n");
}

TEST(whatIsKeptOutlivesDamage)
{
    const std::string data = useFreshFolder();
    const int anna = addKept(u"Anna", lines);
    const int bert = addKept(u"Bert", "ORG:Acme\r\n");
    ORVA_PBSrv_DelAddrRec(bert, local);
    ORVA_Sim_Reset(nullptr);
    CHECK_EQ(RawStore(data).ask("DROP TABLE memberships"), "");
    CHECK_EQ(ORVA_Sim_Reset(data.c_str()), ORVA_OK);
    CHECK_EQ(kept(anna), lines);
    REQUIRE(binEntries().size() == 1);
    CHECK_EQ(binKept(binEntries()[0]), "ORG:Acme\r\n");
}

TEST(whatCannotBeKeptIsRefused)
{
    const std::string data = useFreshFolder();
    void* record = nullptr;
    REQUIRE(newRecord(card, {{"Name", u"Anna"}}, &record) == ORVA_OK);
    CHECK_EQ(ORVA_Care_SetKept(record, lines, 3), ORVA_E_UNSUPPORTED);
    CHECK_EQ(keptOf(record), "");
    ORVA_PBSrv_AddrRecord_Release(record);
    REQUIRE(newRecord(local, {{"Name", u"Anna"}}, &record) == ORVA_OK);
    CHECK_EQ(ORVA_Care_SetKept(record, nullptr, 3), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_SetKept(record, lines, -1), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Care_SetKept(record, lines, ORVA_KEPT_MAX + 1), ORVA_E_TOO_LONG);
    CHECK_EQ(ORVA_Care_SetKept(record, nullptr, 0), ORVA_OK);
    CHECK_EQ(ORVA_Care_GetKept(record, nullptr, nullptr), ORVA_E_ARGUMENT);
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK_EQ(ORVA_Care_SetKept(record, lines, 3), ORVA_E_HANDLE);
    // A record that does not fit brings nothing along.
    add(local, {{"Name", u"Bert"}});
    CHECK_EQ(ORVA_Sim_SetCapacity(local, 1), ORVA_OK);
    REQUIRE(newRecord(local, {{"Name", u"Carl"}}, &record) == ORVA_OK);
    CHECK_EQ(ORVA_Care_SetKept(record, lines, 3), ORVA_OK);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_AddAddrRec(record, &id), ORVA_E_FULL);
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK_EQ(RawStore(data).ask("SELECT count(*) FROM kept"), "0");
}

CHECK_MAIN
