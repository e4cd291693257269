#ifndef LINKHAND_CORE_CATALOGUE_H
#define LINKHAND_CORE_CATALOGUE_H

#include <QByteArray>
#include <QString>
#include <QTranslator>

// The texts and shortcut keys of one compiled language file.
class Catalogue
{
public:
    Catalogue();

    // Reads a compiled language file into memory; later changes of the file do no harm. False, with the catalogue
    // empty, if it cannot be read or is damaged.
    bool load(const QString& strFile);

    // The text of an id in the context of a plug-in, empty if there is none.
    QString text(const QByteArray& strContext, const QByteArray& strId) const;

    // The portable name of the id's shortcut key, empty if there is none.
    QString shortcut(const QByteArray& strContext, const QByteArray& strId) const;

private:
    Q_DISABLE_COPY(Catalogue)

    QByteArray m_content; // the translator reads from here
    QTranslator m_translator;
};

#endif // LINKHAND_CORE_CATALOGUE_H
