#ifndef SDK_SYNC_CARDEDITOR_H
#define SDK_SYNC_CARDEDITOR_H

#include <string>
#include <vector>

#include "sync/CardView.h"
#include "vcard/Card.h"

namespace orva
{

// Changes a card property by property. What is not changed stays octet for octet.
class CardEditor
{
public:
    explicit CardEditor(Card card) : m_card(std::move(card)) {}

    const Card& card() const { return m_card; }
    bool changed() const { return m_changed; }

    // Has the card say what the fields hold that are named; a value may be empty.
    void setFields(const Values& values, const std::vector<ContactField>& fields);

    // A property that the phonebook keeps beside the fields, as it stands there (version 3.0).
    void addKept(const CardProperty& kept);

    // By propertyKey() of what is kept. False if there is none.
    bool removeKept(const std::string& key);
    bool replaceKept(const std::string& key, const CardProperty& kept);

    void changeGroups(const std::vector<std::string>& added, const std::vector<std::string>& removed);

    void setUid(const std::string& uid);
    void setRevision(long long time);

private:
    int indexOfKept(const std::string& key) const;
    CardProperty inVersion(const CardProperty& kept) const;
    void setField(ContactField field, const std::u16string& value);
    void setName(int source, const std::string& name);
    void setStructuredName(const std::string& was, const std::string& name);
    void addField(ContactField field, const std::string& text);
    void setNumber(CardProperty& property, const std::string& number) const;
    void nameKindsOfNumbers();
    void insert(std::size_t at, CardProperty property);
    void erase(int at);
    void setSingle(const char* name, const std::string& value);

    Card m_card;
    bool m_changed = false;
};

// A new card of version 3.0 for what the phonebook has, without a UID.
Card newCard(const SyncContent& content);

} // namespace orva

#endif // SDK_SYNC_CARDEDITOR_H
