#ifndef ADDRBOOKUIPLUGIN_TOOLITEMIDS_H
#define ADDRBOOKUIPLUGIN_TOOLITEMIDS_H

// The buttons of the tool bar, as Config.xml numbers them. 9004 is not in use.
enum ToolItemId {
    TOOL_NEW = 9000,
    TOOL_EDIT = 9001,
    TOOL_DELETE = 9002,
    TOOL_CALL = 9003,
    TOOL_SEND = 9005,
    TOOL_SEARCH = 9006,
    TOOL_IMPORT_MOE = 9007,
    TOOL_IMPORT_MOO = 9008
};

#endif // ADDRBOOKUIPLUGIN_TOOLITEMIDS_H
