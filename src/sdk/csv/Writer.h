#ifndef SDK_CSV_WRITER_H
#define SDK_CSV_WRITER_H

#include <string>
#include <string_view>

namespace orva
{

/*
 * Writes a file as RFC 4180 describes it: UTF-8 with a mark (by which spreadsheet programs know the encoding), commas,
 * CR LF. A column is quoted where something in it would otherwise be lost or misread.
 *
 * The file takes its name only with commit(); until then it is an unfinished one beside it, and goes with the writer.
 * Errors are Failure(ORVA_E_STORE); a target that is there and no regular file is one. A name with "*" in it is a
 * pattern that somebody left standing: ORVA_E_ARGUMENT.
 */
class Writer
{
public:
    explicit Writer(const std::string& path);
    ~Writer();
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    void column(std::u16string_view text);
    void column(std::string_view utf8);
    void endRow();

    // Puts the file on disk under its name. One that is there is kept, with ".~1~" or a higher number behind its name.
    void commit();

private:
    void beginColumn();
    void quoteFrom(std::size_t begin);
    void flush();

    std::string m_path;
    std::string m_unfinished;
    int m_file = -1;
    std::string m_buffer;
    std::string m_scratch;
    int m_columns = 0; // of the current row, so far
    bool m_rowHasText = false;
};

} // namespace orva

#endif // SDK_CSV_WRITER_H
