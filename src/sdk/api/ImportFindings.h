#ifndef SDK_API_IMPORTFINDINGS_H
#define SDK_API_IMPORTFINDINGS_H

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "base/Finding.h"
#include "base/RowBlock.h"
#include "memories/Memory.h"
#include "orva/orva_care.h"

namespace orva
{

// The findings of one import: filled on its thread, then only read.
class ImportFindings
{
public:
    ImportFindings(const char* function, std::string source) : m_function(function), m_source(std::move(source)) {}
    ImportFindings(const ImportFindings&) = delete;
    ImportFindings& operator=(const ImportFindings&) = delete;

    // Keeps a finding, and logs it without what stands in the file.
    void add(const Finding& finding);

    // Adds what the memory will say of the rows when they are stored.
    void judge(const RowBlock& rows, const Profile& profile, Memory& memory);

    // Ends the import. Nothing is added behind this.
    void close();

    int total() const { return m_total; }
    const std::string& source() const { return m_source; }
    const std::vector<ORVA_FINDING>& kept() const { return m_kept; }

    // Those in an array by their lines, which the caller frees; null for none.
    ORVA_FINDING* copies() const;

    // The form in which a finding is handed out.
    static ORVA_FINDING plain(const Finding& finding);

private:
    void log(const Finding& finding);
    bool judgeRow(const RowBlock& rows, std::size_t row, const Profile& profile, Memory& memory);

    const char* m_function;
    const std::string m_source;
    std::vector<ORVA_FINDING> m_kept;
    std::vector<int> m_refused; // the lines of rows with a number that is none, ascending
    int m_total = 0;
};

// The last import of the process.
class LastImport
{
public:
    // True if somebody should be told: there are findings, or there were.
    bool set(std::shared_ptr<const ImportFindings> findings);

    // Null before the first.
    std::shared_ptr<const ImportFindings> get() const;

private:
    mutable std::mutex m_mutex;
    std::shared_ptr<const ImportFindings> m_findings;
};

} // namespace orva

#endif // SDK_API_IMPORTFINDINGS_H
