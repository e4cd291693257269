// A client of the library that tells what it hears: "event N" a line as it comes, and answers to orders, each ended by
// a line "=": device, card, network, memories, rows, report.

#include <cstdio>
#include <iostream>
#include <mutex>
#include <string>

#include "orva/orva_modem.h"
#include "orva/orva_sdk.h"

namespace
{

std::mutex output;

int heard(int event, void*)
{
    const std::lock_guard<std::mutex> lock(output);
    std::printf("event %d\n", event);
    std::fflush(stdout);
    return 1;
}

std::string narrow(unsigned short* text)
{
    std::string out;
    for (const unsigned short* unit = text; unit != nullptr && *unit != 0; ++unit)
        out.push_back(*unit < 0x80 ? static_cast<char>(*unit) : '?');
    delete[] text;
    return out;
}

int rowsOf(int memory)
{
    void* set = nullptr;
    int count = -1;
    if (ORVA_PBSrv_GetAddrRecList(memory, &set) != ORVA_OK)
        return -1;
    if (set == nullptr)
        return 0;
    ORVA_PBSrv_AddrRecordSet_GetAddrRecordCount(set, &count);
    ORVA_PBSrv_AddrRecordSet_Release(set);
    return count;
}

std::string memories()
{
    short types[4] = {-1, -1, -1, -1};
    unsigned short count = 4;
    std::string text;
    if (ORVA_PBSrv_PBGetMemoryListType(types, &count) != ORVA_OK)
        return "none";
    for (const short type : types)
        text += type < 0 ? std::string() : std::to_string(type) + " ";
    return text;
}

std::string answer(const std::string& order)
{
    int value = 0;
    if (order == "device")
        return ORVA_DevSrv_GetDevStatus(&value) == ORVA_OK ? std::to_string(value) : "failed";
    if (order == "card")
        return ORVA_DevSrv_GetPinStatus(0, &value, nullptr, nullptr, nullptr) == ORVA_OK ? std::to_string(value)
                                                                                         : "none";
    if (order == "network")
        return ORVA_NetSrv_GetSrvStatus(&value) == ORVA_OK ? std::to_string(value) : "failed";
    if (order == "memories")
        return memories();
    if (order == "rows")
        return std::to_string(rowsOf(ORVA_MEMORY_CARD)) + " " + std::to_string(rowsOf(ORVA_MEMORY_DEVICE));
    if (order == "report") {
        unsigned short* text = nullptr;
        return ORVA_Modem_GetReport(&text) == ORVA_OK ? narrow(text) : "failed";
    }
    return "? " + order;
}

} // namespace

int main()
{
    ORVA_DevSrv_RegisterDevInitEventCallback(&heard);
    ORVA_DevSrv_RegisterDevMgrCallback(&heard);
    ORVA_NetSrv_RegisterNetSrvEvent(&heard);
    ORVA_PBSrv_RegisterPBCallback(&heard);
    for (std::string order; std::getline(std::cin, order);) {
        const std::string text = answer(order);
        const std::lock_guard<std::mutex> lock(output);
        std::printf("%s\n=\n", text.c_str());
        std::fflush(stdout);
    }
    return 0;
}
