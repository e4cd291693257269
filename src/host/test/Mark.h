#ifndef LINKHAND_HOST_MARK_H
#define LINKHAND_HOST_MARK_H

// Lines for somebody who times the program.
class Mark
{
public:
    // Writes to the file that a variable of the environment names; does nothing without the variable.
    static void Write(const char* pszVariable, const char* pszLine);
};

#endif // LINKHAND_HOST_MARK_H
