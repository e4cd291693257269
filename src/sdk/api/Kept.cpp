// What is kept with a record beside its fields.

#include <algorithm>
#include <memory>
#include <utility>

#include "api/Boundary.h"
#include "api/Handles.h"
#include "api/Library.h"
#include "base/Text.h"
#include "orva/orva_care.h"
#include "store/Store.h"
#include "vcard/CardText.h"
#include "vcard/KeptLines.h"

using namespace orva;

namespace
{

// What was set, or is stored.
std::string keptWith(const RecordHandle& held)
{
    if (held.kept)
        return *held.kept;
    if (held.memory != ORVA_MEMORY_LOCAL || held.id == 0)
        return std::string();
    return held.fromBin ? groupStore(held.memory).binKept(held.id) : groupStore(held.memory).kept(held.id);
}

void requireKeeping(const RecordHandle& held)
{
    if (held.memory != ORVA_MEMORY_LOCAL)
        throw Failure(ORVA_E_UNSUPPORTED, "this memory keeps nothing beside its fields");
}

bool hasComponents(const CardProperty& property)
{
    return property.is("ADR") || property.is("ORG") || property.is("N");
}

std::string textOf(const CardProperty& property)
{
    if (property.encoding() == CardEncoding::Base64)
        return property.value();
    if (!hasComponents(property))
        return cardText(property, CardVersion::V30);
    std::string text;
    bool first = true;
    for (const std::vector<std::string>& component : cardComponents(property, CardVersion::V30)) {
        text += std::exchange(first, false) ? "" : "\n";
        for (std::size_t i = 0; i < component.size(); ++i)
            text.append(i > 0 ? "," : "").append(component[i]);
    }
    return text;
}

void setText(CardProperty& property, const std::string& text)
{
    if (!hasComponents(property)) {
        setCardText(property, text, CardVersion::V30);
        return;
    }
    std::vector<std::string> components(1);
    for (const char c : text) {
        if (c == '\n')
            components.emplace_back();
        else
            components.back().push_back(c);
    }
    setCardComponents(property, components, CardVersion::V30);
}

} // namespace

long ORVA_Care_SetKept(void* record, const char* lines, int octets)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<RecordHandle>(record);
        requireKeeping(held);
        if (octets < 0)
            throw Failure(ORVA_E_ARGUMENT, "a length below 0");
        if (octets > ORVA_KEPT_MAX)
            throw Failure(ORVA_E_TOO_LONG, "more than can be kept with a record");
        if (octets > 0)
            require(lines);
        held.kept = octets > 0 ? std::string(lines, static_cast<std::size_t>(octets)) : std::string();
        return ORVA_OK;
    });
}

long ORVA_Care_GetKept(void* record, char** lines, int* octets)
{
    return guarded(__func__, [&] {
        const auto& held = fromHandle<RecordHandle>(record);
        require(lines);
        require(octets);
        const std::string kept = keptWith(held);
        *lines = new char[kept.size() + 1];
        std::copy_n(kept.c_str(), kept.size() + 1, *lines);
        *octets = static_cast<int>(kept.size());
        return ORVA_OK;
    });
}

long ORVA_Care_GetKeptProperty(void* record, int index, ORVA_KEPT_PROPERTY* property)
{
    return guarded(__func__, [&]() -> long {
        const auto& held = fromHandle<RecordHandle>(record);
        require(property);
        const std::vector<CardProperty> properties = keptProperties(keptWith(held));
        if (index < 0)
            throw Failure(ORVA_E_ARGUMENT, "an index below 0");
        if (static_cast<std::size_t>(index) >= properties.size())
            return ORVA_E_END;
        const CardProperty& found = properties[static_cast<std::size_t>(index)];
        std::unique_ptr<unsigned short[]> head(toApi(fromUtf8(headOf(found))));
        property->value = toApi(fromUtf8(textOf(found)));
        property->head = head.release();
        property->octets = found.encoding() == CardEncoding::Base64 ? 1 : 0;
        return ORVA_OK;
    });
}

long ORVA_Care_SetKeptProperty(void* record, int index, const char* name, const unsigned short* value)
{
    return guarded(__func__, [&] {
        auto& held = fromHandle<RecordHandle>(record);
        require(value);
        requireKeeping(held);
        std::vector<CardProperty> properties = keptProperties(keptWith(held));
        const std::string text = toUtf8(fromApi(value));
        if (index < -1)
            throw Failure(ORVA_E_ARGUMENT, "an index below -1");
        if (index == -1) {
            require(name);
            if (!isKeptName(name))
                throw Failure(ORVA_E_ARGUMENT, "no property of that name can be kept");
            index = static_cast<int>(properties.size());
            properties.emplace_back(name);
        }
        const auto at = static_cast<std::size_t>(index);
        if (at >= properties.size())
            throw Failure(ORVA_E_NOT_FOUND, "no such property");
        if (text.empty())
            properties.erase(properties.begin() + index);
        else if (properties[at].encoding() == CardEncoding::Base64)
            throw Failure(ORVA_E_UNSUPPORTED, "no text");
        else
            setText(properties[at], text);
        std::string kept = linesOf(properties);
        if (kept.size() > ORVA_KEPT_MAX)
            throw Failure(ORVA_E_TOO_LONG, "more than can be kept with a record");
        held.kept = std::move(kept);
        return ORVA_OK;
    });
}
