#ifndef SDK_SYNC_VDIRFOLDER_H
#define SDK_SYNC_VDIRFOLDER_H

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orva
{

// The most octets that a card may have.
constexpr std::size_t largestCardFile = 5U << 20;

// A file of the folder, by what can be told of it without reading.
struct VdirEntry {
    std::string name;
    std::string look;      // changes with the file's content; empty for one that was written too lately to tell
    long long changed = 0; // seconds since 1970
    int left = 0;          // why it is none to read, ORVA_SYNC_REASON_*; 0 for a card
};

/*
 * A folder of vCards, one a contact, each in a file of its own ("vdir"). Files are replaced whole, by another name and
 * a rename. No symbolic links are followed in it, and what begins with a dot is none of its cards.
 */
class VdirFolder
{
public:
    // Failure(ORVA_E_NOT_FOUND) if it is not there, ORVA_E_STORE if it is no folder. `path` is without symbolic links.
    explicit VdirFolder(const std::string& path);
    ~VdirFolder();
    VdirFolder(const VdirFolder&) = delete;
    VdirFolder& operator=(const VdirFolder&) = delete;

    // Those whose name ends in ".vcf", in no order, but none that `known` marks, which is asked about many at a time.
    // One that is none to read has no look there. What a sync left that was broken off goes, where the marker is
    // locked.
    struct Listed {
        std::string_view name;
        std::string_view look;
        bool known = false;
    };
    using Known = std::function<void(std::vector<Listed>& files)>;
    std::vector<VdirEntry> list(const Known& known = Known()) const;
    std::optional<VdirEntry> entry(const std::string& name) const;

    // The octets of a file; nothing if it is gone, no plain file or too large.
    std::optional<std::string> read(const std::string& name) const;

    // Puts a file there or in place of one, on disk when this returns.
    void write(const std::string& name, const std::string& octets) const;
    void remove(const std::string& name) const;
    bool has(const std::string& name) const;

    // Brings names to disk.
    void sync() const;

    // The identifier that the folder is told by, in a file of its own that stays locked while this object lives; empty
    // if there is none. False from lock() if somebody else holds it.
    std::string marker() const;
    void writeMarker(const std::string& identifier);
    bool lockMarker();

private:
    int m_folder = -1;
    int m_marker = -1;
};

// The name of a new contact's file: its UID where that is safe as a name, else the UID's digest.
std::string vdirName(const std::string& uid);

} // namespace orva

#endif // SDK_SYNC_VDIRFOLDER_H
