// Cards of a file.

#include <algorithm>
#include <fstream>
#include <strings.h>
#include <sys/stat.h>
#include <utility>

#include "base/EmailText.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Unicode.h"
#include "transfer/CardFields.h"
#include "transfer/ContactSource.h"
#include "vcard/CardContact.h"
#include "vcard/CardReader.h"
#include "vcard/CardText.h"
#include "vcard/GroupNames.h"
#include "vcard/KeptLines.h"

namespace orva
{

namespace
{

constexpr std::string_view cardBegin = "BEGIN:VCARD";

bool isCardBegin(const std::string& line)
{
    return ::strncasecmp(line.c_str(), cardBegin.data(), cardBegin.size()) == 0;
}

// Whether something is there, and no plain file: a pipe without a writer would hold us up for ever.
bool isNoFile(const std::string& file)
{
    struct stat state = {};
    return stat(file.c_str(), &state) == 0 && !S_ISREG(state.st_mode);
}

std::ifstream openFile(const std::string& file)
{
    if (isNoFile(file))
        throw Failure(ORVA_E_FORMAT, "not a regular file");
    std::ifstream in(file, std::ios::binary);
    if (!in || in.peek() == std::ifstream::traits_type::eof())
        throw Failure(in.is_open() ? ORVA_E_FORMAT : ORVA_E_NOT_FOUND, "cannot be read, or is empty");
    return in;
}

// How many cards begin in a file, which is set back to its beginning.
int countCards(std::ifstream& in)
{
    int cards = 0;
    for (std::string line; std::getline(in, line);)
        cards += isCardBegin(line) ? 1 : 0;
    in.clear();
    in.seekg(0);
    return cards;
}

// In 2.1, which tells no semicolon in a name from one between names, it is the latter.
std::vector<std::string> groupsOf(const CardContact& contact, CardVersion version)
{
    std::vector<std::string> names;
    for (const std::string& category : contact.groups) {
        const bool several = version == CardVersion::V21;
        for (const std::string& name :
             several ? splitGroups(category) : std::vector<std::string>{groupCalled(category)})
            if (!name.empty())
                names.push_back(name);
    }
    return names;
}

void keep(const char* name, const std::vector<CardParameter>& parameters, std::u16string& text, CardContact& contact)
{
    CardProperty property(name);
    property.setParameters(parameters);
    setCardText(property, toUtf8(text), CardVersion::V30);
    contact.kept.push_back(property);
    contact.left.emplace_back(name);
    text.clear();
}

// A part of a number is another number, so one that cannot be taken is kept in whole.
void keepNumber(const std::string& key, std::u16string& number, CardContact& contact)
{
    const char* const type = key == "Mobile" ? "CELL" : key == "officePhone" ? "WORK" : "HOME";
    keep("TEL", {{"TYPE", {type}}}, number, contact);
}

class CardSource final : public ContactSource
{
public:
    CardSource(const std::string& file, const Profile& profile, bool withGroups, const FindingReport& report)
        : m_profile(profile),
          m_withGroups(withGroups),
          m_in(openFile(file)),
          m_total(countCards(m_in)),
          m_reader(m_in, report)
    {
    }

    bool next(ImportContact& contact) override
    {
        if (!m_reader.next(m_card)) {
            if (m_in.bad())
                throw Failure(ORVA_E_STORE, "cannot read");
            return false;
        }
        CardContact read = contactOf(m_card);
        contact.line = m_card.line;
        contact.findings.clear();
        contact.keptNames.clear();
        contact.values = valuesOf(read, contact);
        for (std::size_t i = 0; i < read.kept.size(); ++i) {
            if (canKeep(read.kept[i], m_card.version))
                contact.keptNames.push_back(read.left[i]);
            else
                contact.findings.emplace_back(ORVA_FINDING_PROPERTY, read.left[i]);
        }
        contact.kept = keptLines(read.kept, m_card.version);
        contact.groups = m_withGroups ? groupsOf(read, m_card.version) : std::vector<std::string>();
        return true;
    }

    int total() const override { return m_total; }
    std::string titleOf(std::size_t field) const override { return m_profile.fields()[field].key; }
    int columnOf(std::size_t) const override { return -1; }

private:
    Values valuesOf(CardContact& read, ImportContact& contact) const
    {
        const std::vector<Field>& fields = m_profile.fields();
        Values values(fields.size());
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (const std::string* text = cardField(fields[i].key, read))
                values[i] = fromUtf8(*text);
        cleanNumbers(values, read);
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const auto room = static_cast<std::size_t>(std::max(fields[i].maxLength, 0));
            if (isNumberField(fields[i])) {
                if (values[i].size() > room)
                    keepNumber(fields[i].key, values[i], read);
            } else if (fields[i].kind == "Email") {
                // Nor is a part of an address one.
                if (values[i].size() > room || !isEmailText(values[i]))
                    keep("EMAIL", {}, values[i], read);
            } else if (values[i].size() > room) {
                values[i].resize(cutLength(values[i], room));
                contact.findings.emplace_back(fields[i].kind == "Name" ? ORVA_FINDING_NAME_CUT : ORVA_FINDING_NOTE_CUT,
                                              fields[i].key);
            }
        }
        return values;
    }

    // Numbers as they are stored. Extensions go into the note, and what is no number is kept beside.
    void cleanNumbers(Values& values, CardContact& read) const
    {
        const std::vector<Field>& fields = m_profile.fields();
        const auto note =
            std::find_if(fields.begin(), fields.end(), [](const Field& field) { return field.kind == "Remaik"; });
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const Pauses pauses = pausesOf(fields[i]);
            if (!isNumberField(fields[i]) || isPlainNumber(values[i], pauses))
                continue;
            std::optional<NumberText> cleaned = readNumber(values[i], pauses);
            if (!cleaned || (!cleaned->extension.empty() && note == fields.end())) {
                keepNumber(fields[i].key, values[i], read);
                continue;
            }
            if (!cleaned->extension.empty()) {
                std::u16string& noted = values[static_cast<std::size_t>(note - fields.begin())];
                noted += (noted.empty() ? u"" : u"\n") + extensionNote(*cleaned);
            }
            values[i] = std::move(cleaned->number);
        }
    }

    const Profile m_profile;
    const bool m_withGroups;
    std::ifstream m_in;
    const int m_total;
    CardReader m_reader;
    Card m_card;
};

} // namespace

std::unique_ptr<ContactSource> openCards(const std::string& file, const Profile& profile,
                                         const SourceSettings& settings, const FindingReport& report)
{
    return std::make_unique<CardSource>(file, profile, settings.withGroups, report);
}

bool beginsLikeCards(const std::string& file)
{
    if (isNoFile(file))
        return false;
    std::ifstream in(file, std::ios::binary);
    std::string begin(cardBegin.size() + 3, '\0');
    in.read(begin.data(), static_cast<std::streamsize>(begin.size()));
    begin.resize(static_cast<std::size_t>(in.gcount()));
    // Behind a mark of UTF-8.
    return isCardBegin(begin.compare(0, 3, "\xEF\xBB\xBF") == 0 ? begin.substr(3) : begin);
}

} // namespace orva
