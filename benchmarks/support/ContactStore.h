#ifndef BENCHMARKS_SUPPORT_CONTACTSTORE_H
#define BENCHMARKS_SUPPORT_CONTACTSTORE_H

#include <string>

#include "benchmarks/support/Started.h"
#include "orva/orva_sdk.h"
#include "orva/orva_sim.h"

// Data folders with contacts in them, for the programs that a benchmark starts.
namespace bench
{

inline void expectOk(long code)
{
    if (code != ORVA_OK)
        fail("the library returned " + std::to_string(code));
}

inline void setField(void* record, const char* key, const std::string& text)
{
    const std::u16string value(text.begin(), text.end());
    expectOk(ORVA_PBSrv_AddrRecord_SetValue(record, key, reinterpret_cast<const unsigned short*>(value.c_str())));
}

// One contact in ten can be found by "zoo". They are stored in another order than that of their names.
inline void makeStore(const std::string& folder, int contacts)
{
    const int local = ORVA_MEMORY_LOCAL;
    expectOk(ORVA_Sim_Reset(folder.c_str()));
    expectOk(ORVA_Sim_SetCapacity(local, 1000000));
    expectOk(ORVA_PBSrv_BeginTransaction(local));
    for (int i = 0; i < contacts; ++i) {
        const std::string n = std::to_string(i);
        const std::string mixed = std::to_string(1000000 + (i * 7919LL) % 1000003);
        void* record = nullptr;
        int id = 0;
        expectOk(ORVA_PBSrv_CreateAddrRecord(local, &record));
        setField(record, "Name", "Contact number " + mixed);
        setField(record, "Mobile", "+4917" + n);
        setField(record, "officePhone", "030" + n);
        setField(record, "homePhone", "040" + n);
        setField(record, "email", "c" + n + "@example.org");
        setField(record, "remark", (i % 10 == 0 ? "Met at the zoo " : "A note on ") + n);
        expectOk(ORVA_PBSrv_AddAddrRec(record, &id));
        expectOk(ORVA_PBSrv_AddrRecord_Release(record));
    }
    expectOk(ORVA_PBSrv_EndTransaction(local));
    expectOk(ORVA_Sim_Reset(nullptr));
}

} // namespace bench

#endif // BENCHMARKS_SUPPORT_CONTACTSTORE_H
