#include "sync/CardFiles.h"

#include "base/Failure.h"
#include "base/Files.h"
#include "sync/ContactMerge.h"
#include "sync/FolderScan.h"
#include "sync/VdirFolder.h"
#include "vcard/CardWriter.h"

namespace orva
{

namespace
{

std::string octetsIn(const std::string& file)
{
    if (!fileExists(file))
        throw Failure(ORVA_E_NOT_FOUND, "no file " + file);
    return readSmallFile(file, largestCardFile);
}

} // namespace

std::optional<std::string> mergedCard(const std::string& ours, const std::string& theirs,
                                      const std::optional<std::string>& before, const std::string& region)
{
    const std::optional<Card> own = onlyCard(ours);
    std::optional<Card> other = onlyCard(theirs);
    const std::optional<Card> base = before ? onlyCard(*before) : std::nullopt;
    if (!own || !other)
        return std::nullopt;
    ContactSides sides;
    sides.here = viewOf(*own).content;
    sides.timeHere = revisionOf(*own);
    sides.there = std::move(*other);
    sides.timeThere = revisionOf(sides.there);
    sides.base = base ? &*base : nullptr;
    if (base)
        sides.baseGroups = viewOf(*base).content.groups;
    std::string octets;
    appendCard(mergeContact(sides, {}, region).there, octets);
    return octets;
}

std::optional<std::string> cardOfUid(const std::string& folder, const std::string& uid)
{
    if (uid.empty() || folder.empty() || !fileExists(folder))
        return std::nullopt;
    const VdirFolder files(folder);
    const auto isOf = [&uid](const std::optional<std::string>& octets) {
        const std::optional<Card> card = octets ? onlyCard(*octets) : std::nullopt;
        return card && uidOf(*card) == uid;
    };
    std::optional<std::string> octets = files.read(vdirName(uid));
    if (isOf(octets))
        return octets;
    for (const VdirEntry& entry : files.list()) {
        octets = files.read(entry.name);
        if (isOf(octets))
            return octets;
    }
    return std::nullopt;
}

void mergeCardFiles(const std::string& file, const std::string& other, const std::string& before,
                    const std::string& region)
{
    const std::string ours = octetsIn(file);
    const std::string theirs = octetsIn(other);
    const std::optional<Card> card = onlyCard(ours);
    const std::optional<std::string> base = card ? cardOfUid(before, uidOf(*card)) : std::nullopt;
    const std::optional<std::string> merged = mergedCard(ours, theirs, base, region);
    if (!merged)
        throw Failure(ORVA_E_FORMAT, "a file does not hold one vCard");
    replacePrivateFile(file, *merged);
    replacePrivateFile(other, *merged);
}

} // namespace orva
