// delete.

#include <cstdio>
#include <vector>

#include "Commands.h"
#include "Sdk.h"

namespace pbctl
{

int runDelete(const Arguments& arguments)
{
    arguments.require(1, 1000000, {"memory"});
    const int memory = arguments.memory();
    std::vector<int> ids;
    for (auto word = arguments.words().begin() + 1; word != arguments.words().end(); ++word)
        ids.push_back(identifierIn(*word));
    Transaction transaction(memory);
    int deleted = 0;
    for (const int id : ids) {
        const long code = ORVA_PBSrv_DelAddrRec(id, memory);
        if (code == ORVA_E_NOT_FOUND) {
            std::fprintf(stderr, "pbctl: the %s has no contact %d\n", memoryName(memory).c_str(), id);
            continue;
        }
        check(code, "deleting contact " + std::to_string(id));
        transaction.wrote();
        ++deleted;
    }
    transaction.commit();
    std::printf("%d contacts deleted\n", deleted);
    return deleted == static_cast<int>(ids.size()) ? done : failed;
}

} // namespace pbctl
