#ifndef LINKHAND_SIBLINGS_SIBLING_H
#define LINKHAND_SIBLINGS_SIBLING_H

#include <QObject>
#include <QString>

#include "linkhand/core/Change.h"
#include "linkhand/plugin/Codes.h"
#include "linkhand/plugin/IBasePlugin.h"
#include "linkhand/plugin/INotify.h"

// What all siblings answer alike. Interface is IBasePlugin, or IUIPlugin for one with a page. The root object serves
// its one kind itself.
template <class Interface>
class Sibling : public QObject, public Interface, public INotify
{
public:
    // iKind is the kind of QueryInterface that gives the root object, 0 for none.
    Sibling(const char* pszName, const char* pszClassId, int iKind)
        : m_strName(QLatin1String(pszName)), m_strClassId(QLatin1String(pszClassId)), m_iKind(iKind)
    {
    }

    void Release() override {}
    int GetLastError() override { return 0; }
    int GetPluginType() override { return 0; }
    QString GetCLSID() override { return m_strClassId; }
    int GetVersion() override { return 0; }
    QString GetPluginName() override { return m_strName; }
    bool IsAllowRelease() override { return false; }
    void UnSDKRegisterEvent() override {}

    int QueryInterface(int iId, QObject** ppObject) override
    {
        if (m_iKind == 0 || iId != m_iKind) {
            return 0;
        }
        *ppObject = this;
        return 1;
    }

    int Notify(unsigned int uiCode, unsigned int, unsigned int) override
    {
        if (uiCode == HOST_NOTIFY_LANGUAGE) {
            Retranslate();
        }
        return 0;
    }

protected:
    // All texts anew.
    virtual void Retranslate() {}

    // A text of this plug-in.
    QString text(const char* pszId) const { return Change::tr(QLatin1String(pszId), m_strName); }

private:
    const QString m_strName;
    const QString m_strClassId;
    const int m_iKind;
};

#endif // LINKHAND_SIBLINGS_SIBLING_H
