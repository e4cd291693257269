#ifndef LINKHAND_HOST_PHONEBOOKKEYS_H
#define LINKHAND_HOST_PHONEBOOKKEYS_H

// The phonebook's texts that have a key, under its own name in the language files.
namespace PhonebookKeys
{

const char* const CONTACT_IDS[] = {"IDS_PMMENU_ADD",      "IDS_PMMENU_DETAIL",   "IDS_PMMENU_DELETE",
                                   "IDS_PMMENU_SEND_MSG", "IDS_PMMENU_SEND_MMS", "IDS_PMMENU_CALL"};
const char* const GROUP_IDS[] = {"IDS_Add_GROUP", "IDS_EDIT_GROUP", "IDS_DEL_GROUP", "IDS_SEND_MSG", "IDS_SEND_MMS"};
const char* const SEARCH_ID = "IDS_PMTOOLBAR_SEARCH";

} // namespace PhonebookKeys

#endif // LINKHAND_HOST_PHONEBOOKKEYS_H
