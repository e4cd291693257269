#include "memories/LocalMemory.h"

#include "memories/Limits.h"

namespace orva
{

LocalMemory::LocalMemory(const std::string& folder, SimulatedHardware& hardware)
    : m_hardware(hardware),
      m_profile(std::make_shared<const Profile>(localProfile())),
      m_store(folder, "local", {"name", "mobile", "office_phone", "home_phone", "email", "remark"}, Store::Bin::Filled)
{
}

int LocalMemory::capacity()
{
    return m_hardware.localCapacity();
}

std::size_t LocalMemory::preferredRows()
{
    return rowsReadAhead;
}

void LocalMemory::read(int first, int last, std::size_t maxRows, RowBlock& rows)
{
    m_store.read(first, last, maxRows, m_profile->size(), rows);
}

void LocalMemory::readSome(const int* ids, std::size_t count, RowBlock& rows)
{
    m_store.readSome(ids, count, m_profile->size(), rows);
}

Values LocalMemory::readOne(int id)
{
    return m_store.readOne(id, m_profile->size());
}

int LocalMemory::lengthOf(const Field& field, std::u16string_view value)
{
    return plainLength(field, value);
}

int LocalMemory::add(const Values& values, const std::string* kept)
{
    requireFit(*m_profile, values, plainLength);
    return m_store.add(values, capacity(), kept);
}

void LocalMemory::update(int id, const Values& values, const std::string* kept)
{
    requireFit(*m_profile, values, plainLength);
    m_store.update(id, values, kept);
}

} // namespace orva
