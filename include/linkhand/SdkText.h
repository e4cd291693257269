#ifndef LINKHAND_SDKTEXT_H
#define LINKHAND_SDKTEXT_H

#include <QString>

#include "linkhand/QtCompat.h"

// A text that the SDK hands out: SDK_CALL(lResult, ORVA_PBSrv_AddrGroupSet_GetName, (set, text.out())).
// Frees its buffer; movable, not to be copied.
class SdkText
{
public:
    // Takes a buffer that the SDK has handed out already.
    explicit SdkText(unsigned short* pBuffer = nullptr) : m_pBuffer(pBuffer) {}
    SdkText(SdkText&& other) noexcept : m_pBuffer(other.m_pBuffer) { other.m_pBuffer = nullptr; }
    SdkText& operator=(SdkText&& other) noexcept
    {
        if (this != &other) {
            clear();
            m_pBuffer = other.m_pBuffer;
            other.m_pBuffer = nullptr;
        }
        return *this;
    }
    SdkText(const SdkText&) = delete;
    SdkText& operator=(const SdkText&) = delete;
    ~SdkText() { clear(); }

    // Where the SDK is to put its buffer.
    unsigned short** out()
    {
        clear();
        return &m_pBuffer;
    }

    bool isNull() const { return m_pBuffer == nullptr; }

    // A null string where the SDK gave none.
    QString toString() const { return m_pBuffer != nullptr ? QtCompat::fromUtf16(m_pBuffer) : QString(); }

private:
    void clear()
    {
        delete[] m_pBuffer;
        m_pBuffer = nullptr;
    }

    unsigned short* m_pBuffer;
};

// A text as the SDK takes it, for the length of one call.
inline const unsigned short* sdkText(const QString& strText)
{
    return strText.utf16();
}

#endif // LINKHAND_SDKTEXT_H
