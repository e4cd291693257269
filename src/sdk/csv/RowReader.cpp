#include "csv/RowReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csv.h>

#include "base/Failure.h"
#include "csv/Separator.h"

namespace orva
{

namespace
{

constexpr std::size_t pieceLength = 64U << 10;

// How often reading takes up again behind a quotation mark that nothing closes. Each time costs at most one row of
// the greatest length, so that no file can make this slow.
constexpr int secondChancesAtMost = 64;

bool isSpace(char c)
{
    return c == ' ' || c == '\t';
}

int neverBlank(unsigned char /*c*/)
{
    return 0;
}

// What readRow() gives instead of a reason.
constexpr int readWell = 0;
constexpr int blankLine = -1;

} // namespace

void Row::clear(int line)
{
    m_text.clear();
    m_ends.clear();
    m_line = line;
}

void Row::add(std::string_view text)
{
    m_text.append(text);
    m_ends.push_back(m_text.size());
}

void Row::resize(int columns)
{
    m_ends.resize(static_cast<std::size_t>(columns), m_text.size());
    m_text.resize(m_ends.empty() ? 0 : m_ends.back());
}

// libcsv behind its callbacks, which no exception may leave.
struct RowReader::Parser {
    explicit Parser(int columns) : columnLimit(columns) { begin(); }
    ~Parser() { csv_free(&parser); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    void begin()
    {
        if (csv_init(&parser, 0) != 0)
            throw Failure(ORVA_E_NO_MEMORY, "CSV parser");
        csv_set_blk_size(&parser, 4096);
        csv_set_delim(&parser, static_cast<unsigned char>(separator));
        ended = false;
    }

    // Forgets the row so far.
    void restart()
    {
        csv_free(&parser);
        begin();
    }

    // Blanks beside a quotation mark may stand around a quoted column; all others belong to theirs.
    void take(std::string_view line, Row& into)
    {
        row = &into;
        std::size_t from = 0;
        for (std::size_t at = line.find('"'); at < line.size(); at = line.find('"', at)) {
            std::size_t begin = at;
            std::size_t behind = at + 1;
            while (begin > from && isSpace(line[begin - 1]))
                --begin;
            while (behind < line.size() && isSpace(line[behind]))
                ++behind;
            if (behind - begin > 1) {
                parse(line.substr(from, begin - from), neverBlank);
                parse(line.substr(begin, behind - begin), nullptr);
                from = behind;
            }
            at = behind;
        }
        parse(line.substr(from), neverBlank);
    }

    void parse(std::string_view text, int (*blank)(unsigned char))
    {
        csv_set_space_func(&parser, blank);
        if (csv_parse(&parser, text.data(), text.size(), column, end, this) != text.size() || outOfMemory)
            throw Failure(ORVA_E_NO_MEMORY, "CSV parser");
    }

    static void column(void* text, std::size_t length, void* self)
    {
        auto* me = static_cast<Parser*>(self);
        try {
            // One more than allowed tells that there were too many.
            if (me->row->columns() <= me->columnLimit)
                me->row->add(std::string_view(static_cast<const char*>(text), length));
        } catch (...) {
            me->outOfMemory = true;
        }
    }

    static void end(int, void* self) { static_cast<Parser*>(self)->ended = true; }

    csv_parser parser = {};
    Row* row = nullptr;
    int columnLimit;
    char separator = ',';
    bool ended = false;
    bool outOfMemory = false;
};

RowReader::RowReader(const std::string& path, Report report, const ReaderLimits& limits)
    : m_limits(limits), m_report(std::move(report)), m_codeset(localCodeset()), m_piece(pieceLength)
{
    // Not blocking, so that a pipe without a writer cannot hold us up before it is refused.
    m_file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (m_file < 0)
        throw Failure(errno == ENOENT || errno == ENOTDIR ? ORVA_E_NOT_FOUND : ORVA_E_STORE,
                      std::string("cannot open: ") + std::strerror(errno));
    try {
        struct stat state = {};
        if (fstat(m_file, &state) != 0 || !S_ISREG(state.st_mode))
            throw Failure(ORVA_E_FORMAT, "not a regular file");
        m_octets = static_cast<std::uint64_t>(state.st_size);
        if (m_octets > m_limits.fileOctets)
            throw Failure(ORVA_E_TOO_LONG, "file too long");
        m_parser = std::make_unique<Parser>(m_limits.columns);
        detectEncoding();
        rewind(m_guess.markLength);
        detectSeparator();
    } catch (...) {
        close(m_file);
        throw;
    }
}

RowReader::~RowReader()
{
    close(m_file);
}

void RowReader::rewind(std::uint64_t offset)
{
    if (lseek(m_file, static_cast<off_t>(offset), SEEK_SET) < 0)
        throw Failure(ORVA_E_STORE, "cannot read");
    m_octetsLeft = m_limits.fileOctets;
    m_decoder = std::make_unique<Decoder>(m_guess.encoding, m_codeset);
}

std::size_t RowReader::readSome()
{
    ssize_t got = 0;
    do {
        got = read(m_file, m_piece.data(), m_piece.size());
    } while (got < 0 && errno == EINTR);
    if (got < 0)
        throw Failure(ORVA_E_STORE, std::string("cannot read: ") + std::strerror(errno));
    const auto octets = static_cast<std::size_t>(got);
    if (octets > m_octetsLeft)
        throw Failure(ORVA_E_TOO_LONG, "file too long");
    m_octetsLeft -= octets;
    return octets;
}

void RowReader::detectEncoding()
{
    m_octetsLeft = m_limits.fileOctets;
    EncodingDetector detector(m_codeset);
    while (!detector.decided()) {
        const std::size_t octets = readSome();
        if (octets == 0)
            break;
        detector.add(std::string_view(m_piece.data(), octets));
    }
    m_guess = detector.guess();
}

void RowReader::detectSeparator()
{
    while (m_text.size() < pieceLength && refill()) {
    }
    const std::string_view text = m_text;
    if (text.size() > 5 && text.substr(0, 4) == "sep=" && text[4] != '"' && (text[5] == '\r' || text[5] == '\n')) {
        m_separator = text[4];
        m_line = 1;
        m_at = m_rowAt = text.substr(5, 2) == "\r\n" ? 7 : 6;
    } else {
        m_separator = guessSeparator(text, m_fileEnded);
    }
    m_parser->separator = m_separator;
    m_parser->restart();
}

// Brings in the next piece of the file, dropping what lies before the current row.
bool RowReader::refill()
{
    if (m_fileEnded)
        return false;
    m_text.erase(0, m_rowAt);
    m_at -= m_rowAt;
    m_searched -= std::min(m_searched, m_rowAt);
    m_rowAt = 0;
    const std::size_t octets = readSome();
    m_fileEnded = octets == 0;
    m_decoder->decode(std::string_view(m_piece.data(), octets), m_fileEnded, m_text);
    return !m_fileEnded;
}

// The place behind the line that begins at m_at, or npos if its end is not yet in the text. Lines end with LF, CR LF
// or CR.
std::size_t RowReader::lineEnd()
{
    const std::string_view text = m_text;
    const std::size_t from = std::max(m_at, m_searched);
    const std::size_t lf = text.find('\n', from);
    const std::size_t end = std::min(lf, text.size());
    const std::size_t cr = text.substr(0, end).find('\r', from);
    if (cr != std::string_view::npos) {
        if (cr + 1 < text.size())
            return cr + (text[cr + 1] == '\n' ? 2 : 1);
        m_searched = cr; // an LF may follow with the next piece
        return std::string::npos;
    }
    if (lf != std::string_view::npos)
        return lf + 1;
    m_searched = text.size();
    return std::string::npos;
}

// Takes the next line with its end, which the last one may lack; an empty one at the end of the file. False when the
// row becomes too long before the line ends.
bool RowReader::nextLine(std::string_view& line)
{
    bool whole = true;
    std::size_t end = lineEnd();
    while (end == std::string::npos) {
        whole = m_text.size() - m_rowAt <= m_limits.rowOctets;
        if (!whole || !refill()) {
            end = m_text.size();
            break;
        }
        end = lineEnd();
    }
    line = std::string_view(m_text).substr(m_at, end - m_at);
    m_at = end;
    ++m_line;
    return whole && m_at - m_rowAt <= m_limits.rowOctets;
}

// Passes over what is left of the line that m_at stands in, without keeping it.
void RowReader::discardLine()
{
    for (;;) {
        const std::size_t end = lineEnd();
        if (end != std::string::npos) {
            m_at = end;
            return;
        }
        const bool half = !m_text.empty() && m_text.back() == '\r';
        m_at = m_rowAt = m_text.size() - (half ? 1 : 0);
        if (!refill()) {
            m_at = m_text.size();
            return;
        }
    }
}

void RowReader::beginRow(Row& row)
{
    m_rowAt = m_at;
    m_rowLine = m_line + 1;
    row.clear(m_rowLine);
}

// A blank line is no row.
bool RowReader::isBlank(std::string_view line) const
{
    return line.find_first_not_of(m_separator == '\t' ? " \r\n" : " \t\r\n") == std::string_view::npos;
}

// Passes over the current row; or over its first line alone if a quotation mark in it may have drawn in the others.
void RowReader::giveUpRow(int reason)
{
    if (m_report)
        m_report({m_rowLine, reason});
    m_parser->restart();
    const bool lineEnds = m_at > 0 && (m_text[m_at - 1] == '\n' || m_text[m_at - 1] == '\r');
    const bool lines = m_line > m_rowLine;
    if (lines && m_secondChances < secondChancesAtMost) {
        ++m_secondChances;
        m_at = m_searched = m_rowAt;
        m_at = std::min(lineEnd(), m_text.size());
        m_line = m_rowLine;
    } else if (!lineEnds) {
        discardLine();
    }
}

bool RowReader::next(Row& row)
{
    for (beginRow(row);; beginRow(row)) {
        const int reason = readRow(row);
        if (reason == readWell)
            return true;
        if (m_at == m_rowAt)
            return false;
        if (reason != blankLine)
            giveUpRow(reason);
    }
}

// Reads lines up to the end of the row. Gives why it cannot, if so.
int RowReader::readRow(Row& row)
{
    for (;;) {
        std::string_view line;
        if (!nextLine(line))
            return ORVA_FINDING_ROW_LENGTH;
        if (line.empty())
            return ORVA_FINDING_QUOTE;
        if (line.size() == m_at - m_rowAt && isBlank(line))
            return blankLine;
        m_parser->take(line, row);
        if (!m_parser->ended && m_fileEnded && m_at == m_text.size())
            m_parser->take("\n", row);
        if (m_parser->ended) {
            m_parser->ended = false;
            return row.columns() <= m_limits.columns ? readWell : ORVA_FINDING_ROW_COLUMNS;
        }
    }
}

} // namespace orva
