#ifndef SDK_BASE_FILES_H
#define SDK_BASE_FILES_H

#include <string>

namespace orva
{

// Makes a folder with those above it, each for the user alone (0700), and takes other people's rights off one that is
// there. Gives its path without symbolic links. Failure(ORVA_E_STORE) if it cannot be made or is another user's.
std::string preparePrivateFolder(const std::string& path);

// Makes an empty file for the user alone (0600) if there is none. Whatever the umask; a symbolic link is not followed
// but refused. False if it was there already.
bool preparePrivateFile(const std::string& path);

// Writes a whole file, 0600, in place of the old one; a reader sees one or the other.
void replacePrivateFile(const std::string& path, const std::string& content);

// The content of a small file; empty if it is not there or is larger than `limit` bytes.
std::string readSmallFile(const std::string& path, std::size_t limit);

bool fileExists(const std::string& path);

// "20240131T235959Z" for names of files that are put aside.
std::string timeStamp();

// A name beside `path` that is not in use: path, the word and a time stamp.
std::string asideName(const std::string& path, const std::string& word);

// A folder's path without symbolic links; as it is if it is not there.
std::string resolvedFolder(const std::string& path);

// The path of a file with symbolic links in its folders resolved. Failure(ORVA_E_NOT_FOUND) if the folder is not there.
std::string resolveFolderOf(const std::string& path);

// Brings a folder's names to disk.
void syncFolder(const std::string& folder);

// A lock between processes, taken on a file of its own; empty when the file cannot be made.
class FileLock
{
public:
    explicit FileLock(const std::string& path);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool tryLock();
    void lock();
    void unlock();

private:
    int m_file;
};

} // namespace orva

#endif // SDK_BASE_FILES_H
