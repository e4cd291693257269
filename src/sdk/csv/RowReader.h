#ifndef SDK_CSV_ROWREADER_H
#define SDK_CSV_ROWREADER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Finding.h"
#include "csv/Encoding.h"

namespace orva
{

// The columns of one row, UTF-8 as far as it could be read, packed into one buffer that is used again for each row.
class Row
{
public:
    int columns() const { return static_cast<int>(m_ends.size()); }

    // Empty for a column that the row does not have.
    std::string_view column(int index) const
    {
        const auto i = static_cast<std::size_t>(index);
        if (i >= m_ends.size())
            return {};
        const std::size_t begin = i == 0 ? 0 : m_ends[i - 1];
        return std::string_view(m_text).substr(begin, m_ends[i] - begin);
    }

    // Number of the line that the row begins in, counted from 1.
    int line() const { return m_line; }

    void clear(int line);
    void add(std::string_view text);

    // Drops the columns behind so many, or adds empty ones.
    void resize(int columns);

private:
    std::string m_text;
    std::vector<std::size_t> m_ends;
    int m_line = 0;
};

// What a reader accepts; tests make it smaller.
struct ReaderLimits {
    std::uint64_t fileOctets = 256U << 20;
    std::size_t rowOctets = 1U << 20; // as UTF-8
    int columns = 4096;
};

/*
 * Reads the rows of a file as RFC 4180 describes them and programs write them: in any of the encodings of Encoding.h,
 * with commas, semicolons or tabs (Separator.h, or what a first line "sep=;" says), quoted or not, with any line ends,
 * which may also stand inside quotes. Blanks count, but around a quoted column.
 *
 * Memory stays within a few times the longest row allowed, whatever the file. A row that cannot be read is reported
 * and passed over. So is, by itself, a line with a quotation mark that nothing closes: reading goes on in the line
 * behind it.
 */
class RowReader
{
public:
    // Told of a row that could not be read.
    using Report = FindingReport;

    // Opens a file. Failure(ORVA_E_NOT_FOUND) if there is none, ORVA_E_STORE if it may not be read, ORVA_E_FORMAT if
    // it is no regular file, ORVA_E_TOO_LONG if it is longer than the limit.
    RowReader(const std::string& path, Report report, const ReaderLimits& limits = ReaderLimits());
    ~RowReader();
    RowReader(const RowReader&) = delete;
    RowReader& operator=(const RowReader&) = delete;

    // Gives the next row; false at the end. Failure(ORVA_E_STORE) if reading fails.
    bool next(Row& row);

    // Of the file, when it was opened.
    std::uint64_t octets() const { return m_octets; }

    EncodingGuess encoding() const { return m_guess; }
    char separator() const { return m_separator; }

private:
    struct Parser;

    void detectEncoding();
    void detectSeparator();
    void rewind(std::uint64_t offset);
    std::size_t readSome();
    bool refill();
    bool nextLine(std::string_view& line);
    std::size_t lineEnd();
    void discardLine();
    void beginRow(Row& row);
    int readRow(Row& row);
    bool isBlank(std::string_view line) const;
    void giveUpRow(int reason);

    ReaderLimits m_limits;
    Report m_report;
    int m_file = -1;
    std::uint64_t m_octets = 0;
    std::uint64_t m_octetsLeft = 0; // of the limit: a file may grow while it is read
    EncodingGuess m_guess;
    std::string m_codeset;
    std::unique_ptr<Decoder> m_decoder;
    std::unique_ptr<Parser> m_parser;
    char m_separator = ',';

    std::vector<char> m_piece; // octets as read
    std::string m_text;        // decoded, from the beginning of the current row on
    std::size_t m_at = 0;      // next line in m_text
    std::size_t m_rowAt = 0;   // current row in m_text
    std::size_t m_searched = 0;
    bool m_fileEnded = false;
    int m_line = 0;    // lines taken so far
    int m_rowLine = 0; // line that the current row begins in
    int m_secondChances = 0;
};

} // namespace orva

#endif // SDK_CSV_ROWREADER_H
