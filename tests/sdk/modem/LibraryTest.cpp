// A real card through the C functions, as every client sees it: chosen in the environment or kept, and everything that
// the simulated card can do.

#include <cstdlib>
#include <filesystem>
#include <string>

#include <unistd.h>

#include "orva/orva_modem.h"
#include "orva/orva_sim.h"
#include "orva/orva_store.h"
#include "support/Check.h"
#include "support/modem/Modem.h"

namespace
{

constexpr int patience = 10000;

std::u16string wide(const std::string& text)
{
    return {text.begin(), text.end()};
}

const unsigned short* units(const std::u16string& text)
{
    return reinterpret_cast<const unsigned short*>(text.c_str());
}

std::string narrow(unsigned short* text)
{
    std::string out;
    for (const unsigned short* unit = text; unit != nullptr && *unit != 0; ++unit)
        out.push_back(*unit < 0x80 ? static_cast<char>(*unit) : '?');
    delete[] text;
    return out;
}

// A data folder, a modem, and a library on both.
struct Setting {
    explicit Setting(bool byEnvironment = true)
    {
        char name[] = "/tmp/linkhand-modem-XXXXXX";
        folder = ::mkdtemp(name);
        modemsim::Plan plan = modemsim::standardPlan();
        plan.ports[0].name = folder + "/port";
        modem = std::make_unique<modemsim::Modem>(plan);
        if (byEnvironment)
            ::setenv("LINKHAND_MODEM", (folder + "/port").c_str(), 1);
        else
            ::unsetenv("LINKHAND_MODEM");
        ORVA_Sim_Reset(folder.c_str());
    }
    ~Setting()
    {
        ::unsetenv("LINKHAND_MODEM");
        ORVA_Sim_Reset(nullptr);
        modem.reset();
        std::filesystem::remove_all(folder);
    }

    std::string folder;
    std::unique_ptr<modemsim::Modem> modem;
};

long add(int memory, const char* name, const char* number, int* id)
{
    void* record = nullptr;
    long code = ORVA_PBSrv_CreateAddrRecord(memory, &record);
    if (code == ORVA_OK)
        code = ORVA_PBSrv_AddrRecord_SetValue(record, "Name", units(wide(name)));
    if (code == ORVA_OK)
        code = ORVA_PBSrv_AddrRecord_SetValue(record, "Number", units(wide(number)));
    if (code == ORVA_OK)
        code = ORVA_PBSrv_AddAddrRec(record, id);
    ORVA_PBSrv_AddrRecord_Release(record);
    return code;
}

std::string listed(int memory)
{
    void* set = nullptr;
    std::string text;
    if (ORVA_PBSrv_GetAddrRecList(memory, &set) != ORVA_OK)
        return "failed";
    if (set == nullptr)
        return text;
    for (long code = ORVA_PBSrv_AddrRecordSet_MoveFirst(set); code == ORVA_OK;
         code = ORVA_PBSrv_AddrRecordSet_MoveNext(set)) {
        unsigned short* value = nullptr;
        ORVA_PBSrv_AddrRecordSet_GetValue(set, "Name", &value);
        text += narrow(value) + " ";
        value = nullptr;
        ORVA_PBSrv_AddrRecordSet_GetValue(set, "Number", &value);
        text += narrow(value) + "\n";
    }
    ORVA_PBSrv_AddrRecordSet_Release(set);
    return text;
}

} // namespace

TEST(withoutAChoiceTheHardwareIsSimulated)
{
    const Setting setting(false);
    unsigned short* choice = nullptr;
    CHECK_EQ(ORVA_Modem_GetHardware(&choice), ORVA_OK);
    CHECK_EQ(narrow(choice), "simulated");
    CHECK_EQ(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, 0), ORVA_OK);
    unsigned short* report = nullptr;
    CHECK_EQ(ORVA_Modem_GetReport(&report), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Modem_Unlock(units(u"1234")), ORVA_E_UNSUPPORTED);
    unsigned short* problem = nullptr;
    CHECK_EQ(ORVA_Modem_GetProblem(&problem), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Sim_SetCard(1), ORVA_OK);
    CHECK_EQ(setting.modem->commands(), 0);
}

TEST(theEntriesOfARealCardAreListed)
{
    const Setting setting;
    REQUIRE(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience) == ORVA_OK);
    REQUIRE(ORVA_Modem_WaitReady(ORVA_MEMORY_DEVICE, patience) == ORVA_OK);
    CHECK_EQ(listed(ORVA_MEMORY_CARD),
             "Anna +491711234567\nZo? M?ller 0301234567\n???? +79161234567\n?? +861012345678\n"
             "Last \"one\", ok 112\n");
    CHECK_EQ(listed(ORVA_MEMORY_DEVICE), "R?my +33123456789\nDevice entry 555\n");
    short types[4] = {-1, -1, -1, -1};
    unsigned short count = 4;
    CHECK_EQ(ORVA_PBSrv_PBGetMemoryListType(types, &count), ORVA_OK);
    CHECK_EQ(types[0], ORVA_MEMORY_CARD);
    CHECK_EQ(types[1], ORVA_MEMORY_DEVICE);
    CHECK_EQ(types[2], -1);
    int status = 0;
    CHECK_EQ(ORVA_DevSrv_GetDevStatus(&status), ORVA_OK);
    CHECK_EQ(status, ORVA_DEVICE_AVAILABLE);
    int capacity = 0;
    CHECK_EQ(ORVA_PBSrv_GetCapacity(ORVA_MEMORY_CARD, &capacity), ORVA_OK);
    CHECK_EQ(capacity, 20);
    ORVA_PROFILE_ENTRY* fields = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetProfile(ORVA_MEMORY_CARD, &fields, &capacity), ORVA_OK);
    CHECK_EQ(capacity, 2);
    CHECK_EQ(std::string(fields[0].label_id), "ID_STR_NAME");
    CHECK_EQ(std::string(fields[1].label_id), "ID_STR_MOBILE_PHONE");
    CHECK_EQ(fields[0].max_length, 18);
    ORVA_PBSrv_ProfileRelease(ORVA_MEMORY_CARD, &fields);
}

TEST(aRealCardIsWrittenTo)
{
    const Setting setting;
    REQUIRE(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience) == ORVA_OK);
    int id = 0;
    CHECK_EQ(ORVA_PBSrv_BeginTransaction(ORVA_MEMORY_CARD), ORVA_OK);
    CHECK_EQ(add(ORVA_MEMORY_CARD, "New", "+49 30 555", &id), ORVA_OK);
    CHECK_EQ(setting.modem->entries("SM").size(), 6u);
    CHECK_EQ(setting.modem->entries("SM")[2].number, "+4930555");
    CHECK_EQ(ORVA_PBSrv_DelAddrRec(id, ORVA_MEMORY_CARD), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_CARD), ORVA_OK);
    CHECK_EQ(ORVA_PBSrv_EndTransaction(ORVA_MEMORY_CARD), ORVA_OK);
    CHECK_EQ(setting.modem->entries("SM").size(), 5u);
    void* groups = nullptr;
    CHECK_EQ(ORVA_PBSrv_GetGroupList(ORVA_MEMORY_CARD, &groups), ORVA_E_UNSUPPORTED);
}

TEST(aNameThatTheHostCountsByCharactersIsLeftToTheModem)
{
    const Setting setting;
    setting.modem->setQuirk("text_units");
    REQUIRE(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience) == ORVA_OK);
    int id = 0;
    void* record = nullptr;
    const std::u16string name = u"\u5317\u4EAC\u5317\u4EAC\u5317\u4EAC\u5317\u4EAC\u5317\u4EAC";
    const auto added = [&] {
        ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_CARD, &record);
        ORVA_PBSrv_AddrRecord_SetValue(record, "Name", units(name));
        const long code = ORVA_PBSrv_AddAddrRec(record, &id);
        ORVA_PBSrv_AddrRecord_Release(record);
        return code;
    };
    CHECK_EQ(added(), ORVA_E_TOO_LONG);
    CHECK_EQ(ORVA_Sim_SetNameUnits(1), ORVA_OK);
    CHECK_EQ(added(), ORVA_OK);
}

TEST(theSwitchesOfTheSimulationAreOff)
{
    const Setting setting;
    for (const long code :
         {ORVA_Sim_SetDevice(0), ORVA_Sim_SetCard(0), ORVA_Sim_SetPinStatus(2), ORVA_Sim_SetRadio(0, 0),
          ORVA_Sim_SetNetwork(0), ORVA_Sim_SetCapacity(0, 1), ORVA_Sim_SetDelay(0, 1, 1)})
        CHECK_EQ(code, ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Sim_WaitEvents(), ORVA_OK);
    int findings = 0;
    REQUIRE(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience) == ORVA_OK);
    CHECK_EQ(ORVA_Store_Check(ORVA_MEMORY_CARD, &findings), ORVA_E_UNSUPPORTED);
    CHECK_EQ(ORVA_Store_Check(ORVA_MEMORY_LOCAL, &findings), ORVA_OK);
}

TEST(aCopyOfARealCardIsPutBack)
{
    const Setting setting;
    REQUIRE(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience) == ORVA_OK);
    const std::u16string file = wide(setting.folder + "/copy");
    CHECK_EQ(ORVA_Store_Backup(ORVA_MEMORY_CARD, units(file)), ORVA_OK);
    int id = 0;
    CHECK_EQ(add(ORVA_MEMORY_CARD, "New", "1", &id), ORVA_OK);
    CHECK_EQ(ORVA_Store_Restore(ORVA_MEMORY_CARD, units(file)), ORVA_OK);
    CHECK_EQ(setting.modem->entries("SM").size(), 5u);
    CHECK_EQ(ORVA_Store_Restore(ORVA_MEMORY_DEVICE, units(file)), ORVA_E_FORMAT);
}

TEST(aKeptChoiceHoldsFromTheNextStart)
{
    const Setting setting(false);
    const std::string port = setting.folder + "/port";
    CHECK_EQ(ORVA_Modem_SetHardware(units(wide("nonsense"))), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Modem_SetHardware(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Modem_SetHardware(units(wide(port))), ORVA_OK);
    unsigned short* choice = nullptr;
    ORVA_Modem_GetHardware(&choice);
    CHECK_EQ(narrow(choice), "simulated");
    ORVA_Sim_Reset(setting.folder.c_str());
    ORVA_Modem_GetHardware(&choice);
    CHECK_EQ(narrow(choice), port);
    CHECK_EQ(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience), ORVA_OK);
    CHECK_EQ(ORVA_Modem_SetHardware(units(u"simulated")), ORVA_OK);
    ORVA_Sim_Reset(setting.folder.c_str());
    ORVA_Modem_GetHardware(&choice);
    CHECK_EQ(narrow(choice), "simulated");
}

TEST(aPortThatIsNotThereIsNoDeviceAndSaysSo)
{
    const Setting setting;
    ::setenv("LINKHAND_MODEM", "/dev/no-such-port", 1);
    ORVA_Sim_Reset(setting.folder.c_str());
    CHECK_EQ(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience), ORVA_E_ABSENT);
    int status = 0;
    CHECK_EQ(ORVA_DevSrv_GetDevStatus(&status), ORVA_OK);
    CHECK_EQ(status, ORVA_DEVICE_AWAY);
    unsigned short* report = nullptr;
    CHECK_EQ(ORVA_Modem_GetReport(&report), ORVA_OK);
    const std::string text = narrow(report);
    CHECK(text.find("port=/dev/no-such-port\nproblem=") == 0);
    unsigned short* problem = nullptr;
    CHECK_EQ(ORVA_Modem_GetProblem(&problem), ORVA_OK);
    const std::string why = narrow(problem);
    CHECK(!why.empty() && text.find("problem=" + why + "\n") != std::string::npos);
    CHECK(ORVA_Modem_GetProblem(nullptr) != ORVA_OK);
    ::setenv("LINKHAND_MODEM", "nonsense", 1);
    ORVA_Sim_Reset(setting.folder.c_str());
    CHECK_EQ(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience), ORVA_E_ABSENT);
    CHECK_EQ(ORVA_Modem_GetReport(&report), ORVA_OK);
    CHECK(narrow(report).find("neither") != std::string::npos);
}

TEST(theReportTellsModemAndStorages)
{
    const Setting setting;
    REQUIRE(ORVA_Modem_WaitReady(ORVA_MEMORY_DEVICE, patience) == ORVA_OK);
    unsigned short* report = nullptr;
    CHECK_EQ(ORVA_Modem_GetReport(&report), ORVA_OK);
    CHECK(narrow(report).find("\ncard=SM 5/20 name 18 number 40\n") != std::string::npos);
    CHECK_EQ(ORVA_Modem_GetReport(nullptr), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Modem_WaitReady(ORVA_MEMORY_LOCAL, 0), ORVA_E_ARGUMENT);
    CHECK_EQ(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, -1), ORVA_E_ARGUMENT);
}

TEST(aMemoryBehindAModemHasNoLossToTell)
{
    const Setting setting;
    CHECK_EQ(ORVA_Modem_WaitReady(ORVA_MEMORY_CARD, patience), ORVA_OK);
    for (const int memory : {ORVA_MEMORY_CARD, ORVA_MEMORY_DEVICE}) {
        long code = ORVA_E_STORE;
        int records = 7;
        CHECK_EQ(ORVA_Store_TakeLoss(memory, &code, &records), ORVA_OK);
        CHECK_EQ(code, ORVA_OK);
        CHECK_EQ(records, 0);
    }
}

CHECK_MAIN
