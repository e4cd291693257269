#ifndef LINKHAND_HOST_CARE_DETAILSECTION_H
#define LINKHAND_HOST_CARE_DETAILSECTION_H

#include <QList>

#include "care/CareSection.h"
#include "care/DetailTasks.h"

class CareTable;
class QLabel;
class QLineEdit;
class QPushButton;

// What is kept with a contact beside the fields of the phonebook, such as an address, a birthday or a photo.
class DetailSection : public CareSection
{
    Q_OBJECT

public:
    DetailSection(CareRunner& runner, QWidget* pParent);

    QString Title() const override;
    void Retranslate() override;
    void Read() override;
    void Take(const CareTask& task) override;
    QWidget* FocusTarget() override;

private slots:
    void OnContactChosen();
    void OnRead();
    void OnPropertyChosen();
    void OnEdit();
    void OnAdd();
    void OnRemove();

private:
    void lay();
    int chosenContact() const;
    int chosenProperty() const; // -1: none
    void showContacts();
    void showProperties();
    void showPhoto(int iProperty);
    void edit(const KeptProperty& property, int iIndex);

    QLabel* m_pHint;
    QLabel* m_pSearchLabel;
    QLineEdit* m_pSearch;
    CareTable* m_pContacts;
    CareTable* m_pProperties;
    QLabel* m_pPhoto;
    QPushButton* m_pEdit;
    QPushButton* m_pAdd;
    QPushButton* m_pRemove;
    QList<NamedContact> m_listContacts;
    QList<KeptProperty> m_listProperties;
    int m_iShown; // the contact whose properties those are
};

#endif // LINKHAND_HOST_CARE_DETAILSECTION_H
