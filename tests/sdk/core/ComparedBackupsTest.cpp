// Backups looked through and compared with what is there, before anybody restores one.

#include <algorithm>
#include <fstream>

#include "Phonebook.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"

using namespace phonebook;
namespace fs = std::filesystem;

namespace
{

// Makes a backup and gives its name.
Text keep()
{
    CHECK_EQ(ORVA_Store_KeepBackup(local, ORVA_BACKUP_ASKED), ORVA_OK);
    ORVA_STORE_BACKUP* found = nullptr;
    int count = 0;
    CHECK_EQ(ORVA_Store_GetBackups(local, &found, &count), ORVA_OK);
    REQUIRE(count > 0);
    CHECK_EQ(found[0].reason, ORVA_BACKUP_ASKED);
    const Text name(reinterpret_cast<const char16_t*>(found[0].name));
    CHECK_EQ(ORVA_Store_BackupsRelease(local, &found), ORVA_OK);
    return name;
}

// What a restore would do, as "2 Anna" a record, sorted.
std::vector<std::string> differences(const Text& name)
{
    ORVA_STORE_DIFFERENCE* found = nullptr;
    int count = -1;
    CHECK_EQ(ORVA_Store_CompareBackup(local, api(name), &found, &count), ORVA_OK);
    std::vector<std::string> all;
    for (int i = 0; i < count; ++i) {
        std::string line = std::to_string(found[i].kind) + " ";
        for (const unsigned short* unit = found[i].name; *unit != 0; ++unit)
            line += static_cast<char>(*unit);
        all.push_back(line);
    }
    CHECK_EQ(ORVA_Store_DifferencesRelease(local, &found, count), ORVA_OK);
    CHECK(found == nullptr);
    std::sort(all.begin(), all.end());
    return all;
}

using Lines = std::vector<std::string>;

} // namespace

TEST(whatARestoreWouldDoIsToldByName)
{
    useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    const int bo = add(local, {{"Name", u"Bo"}});
    add(local, {{"Name", u"Cy"}});
    const Text name = keep();
    CHECK(differences(name).empty());
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    CHECK_EQ(update(local, bo, {{"Name", u"Bob"}}), ORVA_OK);
    add(local, {{"Mobile", u"0170111"}});
    CHECK(differences(name) == Lines({"1 Anna", "2 0170111", "3 Bob"}));
    // Nothing was done.
    CHECK_EQ(sizeOf(local), 3);
    CHECK_EQ(ORVA_Store_RestoreBackup(local, api(name)), ORVA_OK);
    CHECK(differences(name).empty());
}

TEST(whoCameBackUnderAnotherIdentifierIsTheSame)
{
    useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    add(local, {{"Name", u"Anna"}});
    const Text name = keep();
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(anna, local), ORVA_OK);
    CHECK(differences(name) == Lines({"1 Anna"}));
    int id = 0;
    CHECK_EQ(ORVA_Care_Undelete(local, 1, &id), ORVA_OK);
    CHECK(id != anna);
    CHECK(differences(name).empty());
    add(local, {{"Name", u"Anna"}});
    CHECK(differences(name) == Lines({"2 Anna"}));
}

TEST(whatIsKeptBesideTheFieldsCounts)
{
    useFreshFolder();
    const int anna = add(local, {{"Name", u"Anna"}});
    const Text name = keep();
    void* record = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetAddrRecord(anna, local, &record), ORVA_OK);
    const std::string lines = "BDAY:2001-02-03\r\n";
    CHECK_EQ(ORVA_Care_SetKept(record, lines.c_str(), static_cast<int>(lines.size())), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_UpdateAddrRec(record, anna), ORVA_OK);
    ORVA_PBSrv_AddrRecord_Release(record);
    CHECK(differences(name) == Lines({"3 Anna"}));
}

TEST(aBackupThatARestoreWouldRefuseIsToldBefore)
{
    const std::string data = useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    const Text name = keep();
    const std::string file = data + "/backups/" + std::string(name.begin(), name.end()) + ".db";
    CHECK_EQ(ORVA_Store_CheckBackup(local, api(name)), ORVA_OK);
    CHECK_EQ(ORVA_Store_CheckBackup(local, api(u"local-none")), ORVA_E_NOT_FOUND);
    CHECK_EQ(ORVA_Store_CheckBackup(local, nullptr), ORVA_E_ARGUMENT);
    fs::resize_file(file, fs::file_size(file) - 4096);
    CHECK_EQ(ORVA_Store_CheckBackup(local, api(name)), ORVA_E_FORMAT);
    ORVA_STORE_DIFFERENCE* found = nullptr;
    int count = -1;
    CHECK_EQ(ORVA_Store_CompareBackup(local, api(name), &found, &count), ORVA_E_FORMAT);
    CHECK(found == nullptr);
    std::ofstream(file, std::ios::trunc) << "no database at all, but long enough to look at";
    CHECK_EQ(ORVA_Store_CheckBackup(local, api(name)), ORVA_E_FORMAT);
    CHECK_EQ(sizeOf(local), 1);
}

TEST(aSoundStoreHasNothingToSay)
{
    useFreshFolder();
    add(local, {{"Name", u"Anna"}});
    int findings = -1;
    unsigned short* lines = nullptr;
    CHECK_EQ(ORVA_Store_CheckInWords(local, &findings, &lines), ORVA_OK);
    CHECK_EQ(findings, 0);
    REQUIRE(lines != nullptr);
    CHECK_EQ(lines[0], 0);
    delete[] lines;
    CHECK_EQ(ORVA_Store_CheckInWords(local, &findings, nullptr), ORVA_E_ARGUMENT);
}

CHECK_MAIN
