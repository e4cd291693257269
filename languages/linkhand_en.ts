<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>linkhand</name>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCH_HINT</source>
        <translation>Search contacts</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>AddrBookUIPlugin</name>
    <message>
        <source>IDS_ADDR_FROM_VALUE</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>IDS_ADDR_NUMDLG_TITLE</source>
        <translation>Select number</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FIELD</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FROM</source>
        <translation>Taken from</translation>
    </message>
    <message>
        <source>IDS_ADD_RECORD_INFO</source>
        <translation>New contact</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_COPY_COMPLETE</source>
        <translation>Copying has finished.</translation>
    </message>
    <message>
        <source>IDS_COPY_STATUS</source>
        <translation>Copying contacts…</translation>
    </message>
    <message>
        <source>IDS_DELETE_GROUP</source>
        <translation>Delete this group and the groups in it? Their contacts stay in the phonebook.</translation>
    </message>
    <message>
        <source>IDS_DELETE_STATUS</source>
        <translation>Removing contacts…</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <translation>Delete group</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <translation>Rename group</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <comment>shortcut</comment>
        <translation>F2</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <translation>Edit contact</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOK</source>
        <translation>Export all contacts…</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOKSEL</source>
        <translation>Export selected contacts…</translation>
    </message>
    <message>
        <source>IDS_FLEXIT_UI_DELETE_ITEM</source>
        <translation>Delete the selected contacts? This cannot be undone.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_NULL</source>
        <translation>Please give the group a name.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_REPEAT</source>
        <translation>There is already a group with this name.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_CHARACTER_EMAIL</source>
        <translation>The e-mail address contains characters that are not allowed.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_EMAIL</source>
        <translation>This is not a valid e-mail address.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DEVICEFULL</source>
        <translation>The memory is full. Contacts imported: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_IMPORTED_NUMBER</source>
        <translation>, imported: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_PHONEBOOK</source>
        <translation>Import contacts…</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STATUS</source>
        <translation>Importing contacts…</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TOTAL_NUMBER</source>
        <translation>Contacts found: </translation>
    </message>
    <message>
        <source>IDS_INIT_DEV_UNDERWAY</source>
        <translation>The device is still being prepared. Please try again in a moment.</translation>
    </message>
    <message>
        <source>IDS_LOCAL_PHONEBOOKUI</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>IDS_MAP_CAPTION</source>
        <translation>Match columns and fields</translation>
    </message>
    <message>
        <source>IDS_MAP_TIPSINFO</source>
        <translation>Drag each column on the left to the field that is to receive it. Delete empties a field.</translation>
    </message>
    <message>
        <source>IDS_MOVE_COMPLETE</source>
        <translation>Moving has finished.</translation>
    </message>
    <message>
        <source>IDS_MOVE_REC_DEV_FULL</source>
        <translation>The memory is full. Contacts copied: </translation>
    </message>
    <message>
        <source>IDS_MOVE_STATUS</source>
        <translation>Moving contacts…</translation>
    </message>
    <message>
        <source>IDS_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_NORECORDSELECT</source>
        <translation>No contact is selected.</translation>
    </message>
    <message>
        <source>IDS_NV</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_PHONE_TYPE</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>IDS_PHONE_VALUE</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <translation>New contact</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <translation>Delete contacts</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <translation>Import from Outlook Express</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <translation>Import from Outlook</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <translation>New contact…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <translation>Call</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <translation>Edit contact…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <translation>Import from Outlook Express…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <translation>Import from Outlook…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_REMFRGRP</source>
        <translation>Remove from group</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <translation>Multimedia message…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <translation>Text message…</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_PMMENU_VIDEO_CALL</source>
        <translation>Video call</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <comment>shortcut</comment>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Phonebook</translation>
    </message>
    <message>
        <source>IDS_RECORD_INFO</source>
        <translation>Edit contact</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <translation>Send multimedia message…</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <translation>Send text message…</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_SIM</source>
        <translation>%s card</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTFAILURE_COUNT</source>
        <translation>The contacts could not be exported.</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTSUCCESS_COUNT</source>
        <translation>The contacts have been exported.</translation>
    </message>
    <message>
        <source>IDS_SMS_IMPORTFAILURE_COUNT</source>
        <translation>The contacts could not be read.</translation>
    </message>
    <message>
        <source>IDS_STR_MAKECALLFAILED</source>
        <translation>The call could not be started.</translation>
    </message>
    <message>
        <source>IDS_STR_REPEARTEDNUMBER</source>
        <translation>This number is in another field of the contact already. Save the contact nevertheless?</translation>
    </message>
    <message>
        <source>IDS_STR_STATINFORMATION</source>
        <translation>Numbers: %d, selected: %d</translation>
    </message>
    <message>
        <source>IDS_SUCCESS_COUNT</source>
        <translation>, successful: </translation>
    </message>
    <message>
        <source>IDS_TOTAL_COUNT</source>
        <translation>Contacts: </translation>
    </message>
    <message>
        <source>IDS_UNSUCCESS</source>
        <translation>The contact could not be saved. Please check its values.</translation>
    </message>
    <message>
        <source>ID_STR_BUSINESS_PHONE</source>
        <translation>Office</translation>
    </message>
    <message>
        <source>ID_STR_EMAIL</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>ID_STR_HOME_PHONE</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>ID_STR_MOBILE_PHONE</source>
        <translation>Mobile</translation>
    </message>
    <message>
        <source>ID_STR_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>ID_STR_NOTES</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save as</translation>
    </message>
</context>
</TS>
