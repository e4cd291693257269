#ifndef SDK_BASE_OPENFILE_H
#define SDK_BASE_OPENFILE_H

#include <unistd.h>

namespace orva
{

// A file's descriptor, closed at the end of its scope; a negative one is that of no file.
class OpenFile
{
public:
    explicit OpenFile(int file) : m_file(file) {}
    ~OpenFile()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int get() const { return m_file; }
    bool isOpen() const { return m_file >= 0; }

private:
    int m_file;
};

} // namespace orva

#endif // SDK_BASE_OPENFILE_H
