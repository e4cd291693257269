<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>linkhand</name>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>Über Linkhand</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_DOTS</source>
        <translation>Info …</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_LICENCE</source>
        <translation>Freie Software unter der MIT-Lizenz, ohne jede Gewährleistung.</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_QT</source>
        <translation>Mit Qt %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_RELEASE</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_WHAT</source>
        <translation>Kontakte, Nachrichten und Anrufe Ihres Mobilfunkmodems.</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_FAILED</source>
        <translation>Das Modem konnte nicht anrufen</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_INCOMING</source>
        <translation>Anruf von %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CALL_NOT_CONNECTED</source>
        <translation>Das Netz hat den Anruf nicht verbunden: Das kann an der Nummer, am Guthaben oder an der Karte liegen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARD_INSERTED</source>
        <translation>SIM-Karte eingelegt</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ALIKE_NUMBER</source>
        <translation>Eine Nummer, andere Namen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ALIKE_SAME</source>
        <translation>Dieselbe Person</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS_HINT</source>
        <translation>Kopien des Telefonbuchs auf dem Computer, einmal am Tag und vor größeren Änderungen von selbst gemacht. Die letzten %1 bleiben. Vor einer Wiederherstellung wird kopiert, was da ist.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUPS_NONE</source>
        <translation>Es gibt noch keine Sicherung.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_ASKED</source>
        <translation>Von Hand gemacht</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_DAILY</source>
        <translation>Einmal am Tag</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_IMPORT</source>
        <translation>Vor einem Import</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MADE</source>
        <translation>Die Sicherung ist gemacht.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MERGE</source>
        <translation>Vor einem Zusammenführen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_MIGRATION</source>
        <translation>Vor einer neuen Version</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_NOW</source>
        <translation>Jetzt sichern</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_RESTORE</source>
        <translation>Vor einer Wiederherstellung</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_RESTORE_DOTS</source>
        <translation>Wiederherstellen …</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_SOUND</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_VERIFIED</source>
        <translation>Geprüfte Sicherungen: %1, in Ordnung: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BACKUP_VERIFY</source>
        <translation>Alle prüfen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_CHANGED</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_DELETED</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_HINT</source>
        <translation>Was auf dem Computer gelöscht oder überschrieben wurde, bleibt hier %1 Tage lang. Was wiederhergestellt wird, ist ein eigener Kontakt; ein geänderter bleibt daneben, wie er jetzt ist.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_NONE</source>
        <translation>Hier ist nichts.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_RESTORE</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_BIN_RESTORED</source>
        <translation>Wiederhergestellte Kontakte: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_GROUPS</source>
        <translation>Gruppen, die hier nicht übernommen werden; ein Import auf der Pflegeseite übernimmt sie</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NO_GROUP</source>
        <translation>Nicht in diese Gruppe aufgenommen: So kann sie nicht heißen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_REFUSED</source>
        <translation>Beim Speichern abgelehnt (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT</source>
        <translation>Import und Export</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_HINT</source>
        <translation>Holt Kontakte samt Gruppen aus vCard- und CSV-Dateien und aus anderen Programmen. Zuerst sehen Sie, was käme; vor dem Druck auf Importieren ändert sich nichts.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_FILE</source>
        <translation>Datei wählen …</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_PROGRAM</source>
        <translation>Aus %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT</source>
        <translation>Alle exportieren …</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_EXISTING</source>
        <translation>Kontakte, die es schon gibt:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_ADD</source>
        <translation>Noch einmal hinzufügen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_SKIP</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_UPDATE</source>
        <translation>Auf den neuen Stand bringen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DO</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_LEFT</source>
        <translation>Was übrig blieb (%1) …</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NONE</source>
        <translation>Wählen Sie eine Datei oder ein Programm, um zu sehen, was daraus käme.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_OUTCOME</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NEW</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_CHANGED</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_SAME</source>
        <translation>Schon da, nichts Neues</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_THERE</source>
        <translation>Schon da, ausgelassen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_NOT</source>
        <translation>Nicht übernommen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_WOULD</source>
        <translation>Aus %1 kämen: neu %2, aktualisiert %3, schon da %4, nicht übernommen %5</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DID</source>
        <translation>Aus %1 kamen: neu %2, aktualisiert %3, schon da %4, nicht übernommen %5</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_DONE</source>
        <translation>Importiert aus %1. Neue Kontakte: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_CANCELLED</source>
        <translation>Abgebrochen. Was schon da ist, bleibt; ein zweiter Import lässt es aus.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_IMPORT_UNREADABLE</source>
        <translation>In %1 lässt sich nichts als Kontakte lesen.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_DONE</source>
        <translation>Geschrieben nach %1. Kontakte: %2.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_CANCELLED</source>
        <translation>Abgebrochen. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_EXPORT_KEPT</source>
        <translation>Die Datei, die es schon gab, liegt daneben, mit „.~1~“ oder der nächsten freien Nummer hinter ihrem Namen.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_AGAIN</source>
        <translation>Noch einmal prüfen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_DAMAGE</source>
        <translation>Am %1 war die Datei beschädigt und wurde durch eine neue ersetzt.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_FILE</source>
        <translation>Die beschädigte Datei liegt als:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_FINDINGS</source>
        <translation>Schäden gefunden: %1. Sichern Sie, und stellen Sie die letzte Sicherung wieder her, die in Ordnung ist.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_HINT</source>
        <translation>Sieht die Datei durch, in der die Kontakte des PCs liegen.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_SALVAGE</source>
        <translation>Gerettet: Kontakte %1, Gruppen %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_SOUND</source>
        <translation>Der Speicher ist in Ordnung. Kontakte: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_WHAT</source>
        <translation>Was gefunden wurde:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_CHECK_WRITABLE_NOT</source>
        <translation>Die Kontakte können zurzeit nicht gespeichert werden:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_ALIKE</source>
        <translation>Was sie gemeinsam haben</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_CONTACTS</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_FIELD</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_GROUPS</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_MERGED</source>
        <translation>Zusammengeführt</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_NUMBER</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_SIDE</source>
        <translation>Kontakt %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_STATE</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_VALUE</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHAT</source>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHEN</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_COLUMN_WHY</source>
        <translation>Warum gemacht</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS_HINT</source>
        <translation>Was neben den Feldern des Telefonbuchs zu einem Kontakt aufbewahrt wird: aus vCard-Dateien oder hier hinzugefügt. Beim Export als vCards kommt es wieder heraus.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DETAILS_NONE</source>
        <translation>Neben den Feldern ist nichts aufbewahrt.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES</source>
        <translation>Doppelte</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES_HINT</source>
        <translation>Kontakte, die nach derselben Person aussehen oder eine Nummer teilen. Was im zusammengeführten Kontakt keinen Platz hat, kommt in seine Notizen; was jeder vorher sagte, liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_DUPLICATES_NONE</source>
        <translation>Niemand ist doppelt vorhanden.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_BUSY</source>
        <translation>Ein anderes Programm benutzt gerade die Kontakte. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_FORMAT</source>
        <translation>Die Datei ist beschädigt oder nicht von der erwarteten Art.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_FULL</source>
        <translation>Das Telefonbuch ist voll.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_GONE</source>
        <translation>Das gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_LONG</source>
        <translation>Einer der Werte ist zu lang.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_NUMBER</source>
        <translation>Eine der Nummern ist keine Telefonnummer.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_READ_ONLY</source>
        <translation>Die Kontakte können zurzeit nur gelesen werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_SPACE</source>
        <translation>Der Datenträger ist voll. Ihre Kontakte sind sicher.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_STORE</source>
        <translation>Das hat nicht geklappt (%1); im Protokoll steht mehr.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_ERROR_VERSION</source>
        <translation>Die Datei wurde von einer neueren Version geschrieben.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADD</source>
        <translation>Einzelheit hinzufügen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADD_DOTS</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADR</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ADR_HINT</source>
        <translation>Je eine Zeile, auch leere: Postfach, Zusatz, Straße, Ort, Region, Postleitzahl, Land.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_BDAY</source>
        <translation>Geburtstag</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_BDAY_HINT</source>
        <translation>Jahr, Monat und Tag, wie 1990-12-31.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_EDIT_DOTS</source>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_EMAIL</source>
        <translation>Weitere E-Mail</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_NICKNAME</source>
        <translation>Spitzname</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_NOTE</source>
        <translation>Weitere Notizen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_OCTETS</source>
        <translation>Größe in KB: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_ORG</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_PHOTO</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_REMOVE</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_STORED</source>
        <translation>Die Änderung ist gespeichert.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_TEL</source>
        <translation>Weitere Nummer</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_TITLE</source>
        <translation>Berufsbezeichnung</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_KEPT_URL</source>
        <translation>Webadresse</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGED</source>
        <translation>Zu einem zusammengeführt: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE_ALL</source>
        <translation>Alle derselben Person zusammenführen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_MERGE_QUESTION</source>
        <translation>Mehrfach vorhandene Personen: %1. Aus jeder einen Kontakt machen? Vorher wird gesichert.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORED</source>
        <translation>Das Telefonbuch ist wieder wie damals.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_CHANGES</source>
        <translation>Kontakte, die werden, wie sie waren: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_COLUMN</source>
        <translation>Was sich ändert</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_FOOT</source>
        <translation>Auch die Gruppen werden, wie sie waren. Was jetzt da ist, bleibt in einer Sicherung, zu der Sie zurückkönnen.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_GOES</source>
        <translation>Kontakte, die verschwinden: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_HEAD</source>
        <translation>Wenn das Telefonbuch wird, wie es am %1 war:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_RETURNS</source>
        <translation>Kontakte, die zurückkommen: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_CHANGES</source>
        <translation>Wie er war</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_GOES</source>
        <translation>Verschwindet</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_RESTORE_ROW_RETURNS</source>
        <translation>Kommt zurück</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SEARCH</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SIDES</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SKIP</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_BUSY</source>
        <translation>Ein anderer Abgleich läuft, oder ein Kontakt wird gerade bearbeitet. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CANCELLED</source>
        <translation>Abgebrochen. Der nächste Abgleich holt es nach.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CHOOSE_DOTS</source>
        <translation>Auswählen …</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CLIENT</source>
        <translation>Das Programm für den Server (vdirsyncer) ist gescheitert:</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CLIENT_NOT</source>
        <translation>Das braucht die Pakete vdirsyncer und, für den Schlüsselbund, libsecret-tools; und der Schlüsselbund muss offen sein.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_COMMAND</source>
        <translation>Gibt ein Befehl aus</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CONFLICT_HERE</source>
        <translation>%1 wurde auf beiden Seiten geändert (%2). Es gilt, was im Telefonbuch stand; das andere liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_CONFLICT_THERE</source>
        <translation>%1 wurde auf beiden Seiten geändert (%2). Es gilt, was auf der anderen Seite stand; was im Telefonbuch stand, liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_DONE</source>
        <translation>Beide Seiten sind jetzt gleich.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_FOLDER</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HELD</source>
        <translation>Nicht gelöscht, weil es so viele auf einmal sind: %1. „pbctl sync --force“ löscht sie.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HERE</source>
        <translation>Telefonbuch: %1 neu, %2 geändert, %3 gelöscht</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_HINT</source>
        <translation>Hält die Kontakte des PCs gleich mit einem Adressbuch auf einem Server oder einem Ordner mit vCards, in beiden Richtungen. Was überschrieben oder gelöscht wird, liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_KEYRING</source>
        <translation>Liegt im Schlüsselbund</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LAST</source>
        <translation>Letzter Abgleich: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT</source>
        <translation>%1 blieb, wie es ist: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_COPY</source>
        <translation>eine andere Datei hat dieselbe UID</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_EMPTY</source>
        <translation>sie enthält nichts, wofür es ein Feld gibt</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_FULL</source>
        <translation>das Telefonbuch ist voll</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LARGE</source>
        <translation>die Datei ist größer als 5 MB</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LARGE_CARD</source>
        <translation>die Karte wäre größer als 5 MB</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_LINK</source>
        <translation>einem symbolischen Link wird nicht gefolgt</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_NO_CARD</source>
        <translation>die Datei enthält nicht genau eine vCard</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_NO_FILE</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_LEFT_UNREADABLE</source>
        <translation>die Datei lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_MARKER</source>
        <translation>Der Ordner ist nicht der des letzten Abgleichs: Vielleicht ist er nicht eingehängt. Nichts wurde getan.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NEVER</source>
        <translation>Es gab noch keinen Abgleich.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NONE</source>
        <translation>Noch ist nichts eingerichtet.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_NOW</source>
        <translation>Jetzt abgleichen</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_OFFLINE</source>
        <translation>Der Server ist nicht zu erreichen. Was sich geändert hat, wartet auf den nächsten Abgleich.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_PASSWORD</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SECRET</source>
        <translation>Kennwort oder Befehl</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SECRET_THERE</source>
        <translation>Leer: Es liegt schon dort</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SET</source>
        <translation>Eingerichtet.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_SETUP</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_THERE</source>
        <translation>Andere Seite: %1 neu, %2 geändert, %3 gelöscht</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER</source>
        <translation>Alle 15 Minuten</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER_FAILED</source>
        <translation>Die Zeitschaltung ließ sich nicht umstellen.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_TIMER_NOT</source>
        <translation>Die Zeitschaltung kommt mit dem Paket und ist nicht da.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL</source>
        <translation>Adresse (URL)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL_BAD</source>
        <translation>Das ist keine Adresse eines Adressbuchs oder kein Pfad eines Ordners.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_URL_OPEN</source>
        <translation>Das Kennwort ginge offen durchs Netz: Nehmen Sie https.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_USER</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH</source>
        <translation>Gleich mit</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH_FOLDER</source>
        <translation>Ein Ordner mit vCards</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_SYNC_WITH_SERVER</source>
        <translation>Ein Adressbuch auf einem Server (CardDAV)</translation>
    </message>
    <message>
        <source>IDS_HOST_CARE_WORKING</source>
        <translation>Arbeitet …</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_KIND</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_PARTNER</source>
        <translation>An oder von</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_STATE</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TEXT</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TIME</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>IDS_HOST_COLUMN_TO</source>
        <translation>An</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_FAILED</source>
        <translation>Die Kontakte konnten nicht auf den Computer kopiert werden. Die Hardware bleibt simuliert.</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_NOT</source>
        <translation>Nicht kopieren</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_OFFER</source>
        <translation>Auf der simulierten Karte und dem simulierten Gerät sind Kontakte, die nicht auf dem Computer sind: %1. Mit einem Modem werden an ihrer Stelle dessen eigene Kontakte gezeigt. Die der simulierten Karte und des simulierten Geräts auf den Computer kopieren? Sie kommen auch wieder, sobald die Hardware wieder simuliert wird.</translation>
    </message>
    <message>
        <source>IDS_HOST_COPY_TO_PC</source>
        <translation>Auf den Computer kopieren</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_CONTACTS</source>
        <translation>Kontakte: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_FOUND</source>
        <translation>Gefunden: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_COUNT_SELECTED</source>
        <translation>Ausgewählt: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_DELETE</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>IDS_HOST_DELETE_QUESTION</source>
        <translation>Möchten Sie die ausgewählte Nachricht löschen?</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_ATTACHED</source>
        <translation>Gerät angeschlossen</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_HINT</source>
        <translation>Das Gerät ist simuliert. Diese Schalter stehen für das, was ein Modem melden würde.</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_TIP</source>
        <translation>Geräteleiste ein- oder ausblenden</translation>
    </message>
    <message>
        <source>IDS_HOST_DEVICE_TITLE</source>
        <translation>Simuliertes Gerät</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCARD</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>IDS_HOST_FORWARD</source>
        <translation>Weiterleiten</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE</source>
        <translation>Hardware:</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_AUTO</source>
        <translation>Modem, automatisch</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_FIXED</source>
        <translation>LINKHAND_MODEM in der Umgebung hat gewählt.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_NEXT</source>
        <translation>Das gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_REFUSED</source>
        <translation>Diese Wahl konnte nicht gespeichert werden. Ein Anschluss beginnt mit „/dev/“.</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_SIMULATED</source>
        <translation>Simuliert</translation>
    </message>
    <message>
        <source>IDS_HOST_HARDWARE_TIP</source>
        <translation>Simuliert, das vorhandene Modem oder der Anschluss eines Modems, etwa /dev/ttyUSB2</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ALL</source>
        <translation>Alle Zeilen auswählen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_CALL_DELETE</source>
        <translation>Den ausgewählten Anruf aus der Liste löschen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_CONTACTS</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_DOTS</source>
        <translation>Tasten …</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_EDIT</source>
        <translation>Den ausgewählten Kontakt bearbeiten</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ESCAPE</source>
        <translation>Ein Fenster oder Menü schließen oder ein Ziehen abbrechen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_GENERAL</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_GROUPS</source>
        <translation>Gruppen, mit der Tastatur im Baum</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_MENU</source>
        <translation>Das Menü des Ausgewählten öffnen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_MORE</source>
        <translation>Eine weitere Zeile auswählen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_COPY_TO</source>
        <translation>Die ausgewählten Kontakte in eine Gruppe, auf die Karte oder das Gerät kopieren</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_ONE_MORE</source>
        <translation>Die Zeile auswählen oder nicht und die anderen lassen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_PAGES</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_QUIT</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH_DOWN</source>
        <translation>Zum ersten gefundenen Kontakt gehen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SEARCH_ESCAPE</source>
        <translation>Das Suchfeld leeren, noch einmal: es ausblenden</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_SPACE</source>
        <translation>Einen Knopf drücken, ein Kästchen oder einen Kontakt ankreuzen</translation>
    </message>
    <message>
        <source>IDS_HOST_HELP_TAB</source>
        <translation>Zum nächsten Teil gehen oder zum vorigen</translation>
    </message>
    <message>
        <source>IDS_HOST_KEEP_DRAFT</source>
        <translation>Als Entwurf aufheben</translation>
    </message>
    <message>
        <source>IDS_HOST_KIND_MMS</source>
        <translation>MMS</translation>
    </message>
    <message>
        <source>IDS_HOST_KIND_SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE_TIP</source>
        <translation>Sprache wählen</translation>
    </message>
    <message>
        <source>IDS_HOST_MANAGER_ABSENT</source>
        <translation>ModemManager läuft nicht: keine Nachrichten und keine Anrufe.</translation>
    </message>
    <message>
        <source>IDS_HOST_MESSAGES</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>IDS_HOST_MESSAGES_HINT</source>
        <translation>Gesendete, empfangene und aufgehobene Nachrichten. Eine empfangene bleibt auf der Karte, bis Sie sie hier löschen. Multimedia-Nachrichten lassen sich über ModemManager nicht senden und bleiben Entwürfe.</translation>
    </message>
    <message>
        <source>IDS_HOST_MMS_KEPT</source>
        <translation>MMS an %1 als Entwurf aufgehoben: ModemManager kann keine Multimedia-Nachrichten senden</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ABSENT</source>
        <translation>ModemManager hat kein solches Modem.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NETWORK</source>
        <translation>Netz: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NOT_ON</source>
        <translation>Das Modem konnte nicht eingeschaltet werden</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ON</source>
        <translation>Modem einschalten</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SIGNAL</source>
        <translation>Signalstärke: %1 %</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE_SIM</source>
        <translation>Mit SIM-Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_MODE_UIM</source>
        <translation>Mit UIM-Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_NETWORK_ON</source>
        <translation>Im Netz eingebucht</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_MMS</source>
        <translation>Neue MMS</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_SMS</source>
        <translation>Neue SMS</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTICES</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTICES_TIP</source>
        <translation>Die letzten Meldungen anzeigen</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX</source>
        <translation>Postausgang</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX_FAILED</source>
        <translation>Der Postausgang konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_OUTBOX_HINT</source>
        <translation>Das Gerät ist simuliert: Nachrichten warten hier, und nichts wurde gesendet.</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_AddrBookUIPlugin</source>
        <translation>Telefonbuch</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Care</source>
        <translation>Pflege</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_FAILED</source>
        <translation>Diese Seite kann nicht angezeigt werden: Das Plug-in „%1“ fehlt oder ist nicht gestartet.</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGE_VoiceCallPlugin</source>
        <translation>Anrufe</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN</source>
        <translation>PIN der Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_ASKED</source>
        <translation>Die Karte wird gefragt …</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_BLOCKED</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_FAILED</source>
        <translation>Die PIN konnte der Karte nicht gegeben werden: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_HINT</source>
        <translation>Die Karte verlangt ihre PIN. Sie geht einmal an die Karte und wird nirgends aufgehoben.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_OFF</source>
        <translation>Nicht verlangt</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_READY</source>
        <translation>Eingegeben, Karte bereit</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_REQUIRED</source>
        <translation>Erforderlich</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_SURE</source>
        <translation>Ich bin sicher, dass diese PIN stimmt</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TITLE</source>
        <translation>PIN der Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TRIES</source>
        <translation>Verbleibende Versuche: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_TRIES_UNKNOWN</source>
        <translation>Das Modem sagt nicht, wie viele Versuche verbleiben.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_UNLOCK</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_WARNING</source>
        <translation>Das kann der letzte Versuch sein: Nach einer weiteren falschen PIN ist die Karte gesperrt.</translation>
    </message>
    <message>
        <source>IDS_HOST_PIN_WRONG</source>
        <translation>Diese PIN war falsch.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_ABSENT</source>
        <translation>Das Plug-in ist nicht installiert.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_BUILDKEY</source>
        <translation>Das Plug-in wurde für ein anderes System oder einen anderen Compiler gebaut: %1.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOLDER</source>
        <translation>Andere dürfen diesen Ordner ändern; kein Plug-in wurde geladen. Entziehen Sie dieses Recht (chmod go-w), wenn Sie dem Inhalt vertrauen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT</source>
        <translation>Das Plug-in konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INTERFACE</source>
        <translation>Dem Plug-in fehlt die Schnittstelle, die dieses Programm braucht.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LINK</source>
        <translation>Die Datei ist eine Verknüpfung und wurde nicht geladen. Legen Sie das Plug-in selbst in den Ordner.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD</source>
        <translation>Das Plug-in konnte nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_NO_LIBRARY</source>
        <translation>Die Datei ist keine dynamische Bibliothek.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_NO_VERIFICATION</source>
        <translation>Die Datei ist kein Plug-in dieses Programms: Sie gibt nicht an, für welches Qt sie gebaut wurde.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_OWNER</source>
        <translation>Die Datei gehört einem anderen Benutzer und wurde nicht geladen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TWICE</source>
        <translation>Ein anderes Plug-in mit derselben Kennung ist bereits geladen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_UNREADABLE</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_VERSION</source>
        <translation>Das Plug-in wurde für Qt %1 gebaut; dieses Programm verwendet ein anderes Qt.</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_WRITABLE</source>
        <translation>Andere dürfen die Datei ändern; sie wurde nicht geladen. Entziehen Sie dieses Recht (chmod go-w), wenn Sie der Datei vertrauen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_BACKUP</source>
        <translation>Die Kontakte einmal am Tag sichern</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_BACKUPS_DOTS</source>
        <translation>Sicherungen …</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_CALLS</source>
        <translation>Anrufe im Menü der Kontakte anbieten</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COLUMNS</source>
        <translation>Breite und Ordnung der Spalten von Liste zu Liste behalten</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY</source>
        <translation>Land für Nummern:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY_NONE</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_COUNTRY_SYSTEM</source>
        <translation>Wie im System eingestellt</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_DUAL_MODE</source>
        <translation>Karte und Gerät bei einer Dual-Mode-Karte ausblenden</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_GENERAL</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_HARDWARE</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_HINT</source>
        <translation>Sprache und Begrüßung ändern sich sofort, der Rest gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_LANGUAGE</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_NAME_UNITS</source>
        <translation>Jeden Buchstaben eines Namens auf der Karte einfach zählen</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_SIM_WORD</source>
        <translation>Wort für eine SIM-Karte:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_START</source>
        <translation>Seite am Anfang:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_START_LAST</source>
        <translation>Die zuletzt benutzte</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_UIM_WORD</source>
        <translation>Wort für eine UIM-Karte:</translation>
    </message>
    <message>
        <source>IDS_HOST_PREFS_WELCOME</source>
        <translation>Über einem leeren Telefonbuch einen Hinweis zeigen</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>IDS_HOST_REPLY</source>
        <translation>Antworten …</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCH_MESSAGES</source>
        <translation>Nachrichten durchsuchen</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND_AGAIN</source>
        <translation>Erneut senden …</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CHANGED</source>
        <translation>Anderswo geändert: anzeigen</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_MOBILE</source>
        <translation>Mobil</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_OFFICE</source>
        <translation>Büro</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_HOME</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_EMAIL</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>IDS_HOST_FIELD_NOTES</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS</source>
        <translation>Vom Import nicht übernommen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COUNT</source>
        <translation>Vom Import nicht übernommen: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_TIP</source>
        <translation>Zeigt, was der letzte Import nicht unverändert übernommen hat</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_HEAD</source>
        <translation>Aus %1 nicht oder nicht unverändert übernommen:</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_MORE</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_ROW</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COLUMN</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_REASON</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_VALUE</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_COPY</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_SAVE</source>
        <translation>Als Text speichern …</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDINGS_NOT_SAVED</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NUMBERED</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_QUOTE</source>
        <translation>Zeile übergangen: ein Anführungszeichen ohne Ende</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ROW_LENGTH</source>
        <translation>Zeile übergangen: zu lang</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ROW_COLUMNS</source>
        <translation>Zeile übergangen: zu viele Spalten</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ZERO</source>
        <translation>Zeile übergangen: ein Null-Byte</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOT_TEXT</source>
        <translation>Zeile übergangen: kein Text</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_VALUE_LENGTH</source>
        <translation>Zeile übergangen: Wert zu lang</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_EMPTY</source>
        <translation>Nicht übernommen: nichts, wofür es ein Feld gibt</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_COLUMN</source>
        <translation>Kein Feld dafür; Werte: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PROPERTY</source>
        <translation>Kein Feld dafür</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_FURTHER</source>
        <translation>Ein weiterer Wert ohne eigenes Feld</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_SEVERAL</source>
        <translation>Von mehreren nur der erste übernommen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_EMAIL</source>
        <translation>In die Notizen gesetzt: keine E-Mail-Adresse</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOTE_CUT</source>
        <translation>Notizen gekürzt</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NAME_CUT</source>
        <translation>Name gekürzt</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NUMBER</source>
        <translation>Kontakt nicht übernommen: keine Telefonnummer</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_TOO_LONG</source>
        <translation>Kontakt nicht übernommen: länger als sein Feld</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_FULL</source>
        <translation>Ab hier kein Platz mehr; Kontakte: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_END</source>
        <translation>Karte ausgelassen: ohne Ende</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LENGTH</source>
        <translation>Karte ausgelassen: zu lang</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LINES</source>
        <translation>Karte ausgelassen: zu viele Zeilen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_OUTSIDE</source>
        <translation>Text außerhalb einer Karte übergangen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_VERSION</source>
        <translation>Unbekannte Version, als 3.0 gelesen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_LINE</source>
        <translation>Zeile ist kein Teil einer Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_ENCODING</source>
        <translation>Datei in UTF-16, worin keine Karte geschrieben wird</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_CARD_NONE</source>
        <translation>Datei enthält keine Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PHOTO</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_BIRTHDAY</source>
        <translation>Geburtstag</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_ADDRESS</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_COMPANY</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_JOB</source>
        <translation>Berufsbezeichnung</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PAGE</source>
        <translation>Webadresse</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_GROUP</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NICKNAME</source>
        <translation>Spitzname</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_PHONE</source>
        <translation>Weitere Nummer</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_MAIL</source>
        <translation>Weitere E-Mail</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NOTE</source>
        <translation>Weitere Notizen</translation>
    </message>
    <message>
        <source>IDS_HOST_FINDING_NAME</source>
        <translation>Weiterer Name</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_DONE</source>
        <translation>Importierte Kontakte: %1 von %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_HEAD</source>
        <translation>Die Kontakte in „%1“. Sie kommen ins Telefonbuch, wenn Sie sie importieren.</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_IMPORT</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_NONE</source>
        <translation>Keine Kontakte</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_NOT_POSSIBLE</source>
        <translation>Die Bibliothek, die hier läuft, importiert keine Kontakte</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_PROGRESS</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_TITLE</source>
        <translation>Kontakte importieren</translation>
    </message>
    <message>
        <source>IDS_HOST_CARDS_UNREADABLE</source>
        <translation>Diese Datei ist nicht als Kontakte lesbar</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_FOREIGN</source>
        <translation>Ein Programm eines anderen Benutzers hat den Platz eingenommen, an dem Linkhand antwortet. Nichts wurde geöffnet.</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_NO_ANSWER</source>
        <translation>Linkhand läuft schon mit diesem Telefonbuch, antwortet aber nicht. Warten Sie einen Augenblick und starten Sie es noch einmal.</translation>
    </message>
    <message>
        <source>IDS_HOST_ELSEWHERE_TOO_MUCH</source>
        <translation>Das ist mehr, als Linkhand auf einmal öffnet. Nichts wurde geöffnet.</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_ALREADY</source>
        <translation>Linkhand wurde noch einmal gestartet: Dies ist sein Fenster</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_CODE</source>
        <translation>„%1“ ist ein Code. Linkhand wählt keine Codes, die von anderswo kommen.</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_EXTENSION</source>
        <translation>Durchwahl: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_NO_PLUGIN</source>
        <translation>Das lässt sich nicht öffnen: Das Plug-in dafür fehlt</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_REFUSED</source>
        <translation>Das kann Linkhand nicht öffnen</translation>
    </message>
    <message>
        <source>IDS_HOST_OPEN_WAITS</source>
        <translation>Was geöffnet werden soll, wartet, bis das Fenster davor zu ist</translation>
    </message>
    <message>
        <source>IDS_HOST_CONTACT_GONE</source>
        <translation>Diesen Kontakt gibt es nicht mehr: Ein anderes Programm hat ihn gelöscht</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS_COUNT</source>
        <translation>Probleme: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEMS_HEAD</source>
        <translation>Linkhand läuft, aber Folgendes ist fehlgeschlagen:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_DAMAGED</source>
        <translation>Ein Speicher war beschädigt. Er bleibt als diese Datei erhalten; was noch lesbar war, wurde in einen neuen übernommen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FILE</source>
        <translation>Die Datei fehlt; installieren Sie Linkhand neu, um sie wiederherzustellen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FOLDER_CREATE</source>
        <translation>Der Datenordner konnte nicht angelegt werden. Kontakte und Nachrichten können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_FOLDER_WRITE</source>
        <translation>In den Datenordner kann nicht geschrieben werden. Änderungen an Kontakten und Nachrichten können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_LOSS</source>
        <translation>Der Datenträger hat bereits angenommene Änderungen an %1 Kontakten abgewiesen; sie sind verloren. Schaffen Sie Platz und sehen Sie die Liste der Kontakte durch.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_MESSAGES</source>
        <translation>Die Nachrichten lassen sich nicht öffnen, und neue können nicht aufbewahrt werden. Vielleicht hat eine neuere Version sie geschrieben.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_MODEM</source>
        <translation>Die Kontakte auf seiner Karte und in ihm sind nicht erreichbar: %1. In einem Terminal sagt „pbctl modem“ mehr, auch was zu tun ist.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_NO_SPACE</source>
        <translation>Der Datenträger ist voll. Ihre Kontakte sind sicher und lesbar; Änderungen lassen sich wieder speichern, sobald Platz ist.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_OUTBOX</source>
        <translation>Der Postausgang war beschädigt. Er bleibt als diese Datei erhalten; was sich lesen ließ, wurde übernommen.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_READ_ONLY</source>
        <translation>Das Telefonbuch lässt sich hier nur lesen. Ihre Kontakte sind sicher; Änderungen lassen sich nicht speichern.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_STORE</source>
        <translation>Das Telefonbuch konnte nicht geöffnet werden (Code %1).</translation>
    </message>
    <message>
        <source>IDS_HOST_PROBLEM_STORE_NEWER</source>
        <translation>Das Telefonbuch wurde von einer neueren Version von Linkhand geschrieben und blieb unverändert.</translation>
    </message>
    <message>
        <source>IDS_HOST_RADIO_ON</source>
        <translation>Funk eingeschaltet</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCH_HINT</source>
        <translation>Kontakte suchen</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>IDS_HOST_SEND_FAILED</source>
        <translation>Die Nachricht kann jetzt nicht gesendet werden.</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_FAILED</source>
        <translation>SMS an %1 wurde nicht gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_KEPT</source>
        <translation>SMS an %1 wurde nicht gesendet und als Entwurf aufgehoben: kein Netz</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_NOT_DELETED</source>
        <translation>Die Nachricht konnte nicht gelöscht werden</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_PARTLY</source>
        <translation>SMS an %1 gescheitert; ein Teil kann gesendet worden sein</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_RECEIVED</source>
        <translation>SMS von %1: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_SENT</source>
        <translation>SMS an %1 wurde gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_STORE_FULL</source>
        <translation>Das Modem hat keinen Platz für Nachrichten: Löschen Sie welche, sonst kommen keine mehr an</translation>
    </message>
    <message>
        <source>IDS_HOST_SMS_UNCERTAIN</source>
        <translation>SMS an %1: Niemand weiß, ob sie gesendet wurde</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED</source>
        <translation>Tempo von Karte und Gerät</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_INSTANT</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_REAL</source>
        <translation>10 ms je Kontakt</translation>
    </message>
    <message>
        <source>IDS_HOST_SPEED_SLOW</source>
        <translation>100 ms je Kontakt</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DRAFT</source>
        <translation>Entwurf, nicht gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_FAILED</source>
        <translation>Nicht gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_PARTLY</source>
        <translation>Gescheitert, vielleicht teils gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_RECEIVED</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SENDING</source>
        <translation>Wird gesendet …</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SENT</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_SIMULATED</source>
        <translation>Simuliert, nicht gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_UNCERTAIN</source>
        <translation>Vielleicht gesendet</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD</source>
        <translation>Karte bereit</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD_BLOCKED</source>
        <translation>Karte gesperrt, PUK nötig</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_CARD_LOCKED</source>
        <translation>Karte gesperrt</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_DEVICE</source>
        <translation>Gerät angeschlossen</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_MODEM_FAILED</source>
        <translation>Das Modem arbeitet nicht</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NOT_MANAGED</source>
        <translation>keine Nachrichten und Anrufe, ModemManager kennt es nicht</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_CALLS</source>
        <translation>keine Anrufe</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_CARD</source>
        <translation>Keine Karte</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_DEVICE</source>
        <translation>Kein Gerät</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MANAGER</source>
        <translation>keine Nachrichten und Anrufe, ModemManager läuft nicht</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MESSAGES</source>
        <translation>keine Nachrichten</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_NO_MODEM</source>
        <translation>keine Nachrichten und Anrufe, kein Modem da</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_OFF</source>
        <translation>Modem aus</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_OFFLINE</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_ONLINE</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_SIMULATED</source>
        <translation>Simuliert</translation>
    </message>
    <message>
        <source>IDS_HOST_STATUS_UNLOCK</source>
        <translation>PIN eingeben …</translation>
    </message>
    <message>
        <source>IDS_HOST_STORE_WRITABLE</source>
        <translation>Änderungen an Kontakten lassen sich wieder speichern.</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE</source>
        <translation>Linkhand</translation>
    </message>
    <message>
        <source>IDS_HOST_UNKNOWN_NUMBER</source>
        <translation>einer unbekannten Nummer</translation>
    </message>
    <message>
        <source>IDS_HOST_WELCOME</source>
        <translation>Ihr Telefonbuch ist leer. Klicken Sie zu Beginn mit der rechten Maustaste in die Tabelle unten: Legen Sie einen neuen Kontakt an, oder importieren Sie die Kontakte eines anderen Programms aus einer Datei.</translation>
    </message>
    <message>
        <source>IDS_HOST_WELCOME_DISMISS</source>
        <translation>Ausblenden</translation>
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
        <translation>Spalte</translation>
    </message>
    <message>
        <source>IDS_ADDR_NUMDLG_TITLE</source>
        <translation>Nummer auswählen</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FIELD</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>IDS_ADDR_TO_FROM</source>
        <translation>Aus Spalte</translation>
    </message>
    <message>
        <source>IDS_ADD_RECORD_INFO</source>
        <translation>Neuer Kontakt</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>IDS_Add_GROUP</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_CONTACT_DETAILS</source>
        <translation>Angaben zum Kontakt</translation>
    </message>
    <message>
        <source>IDS_CONTACT_LIST</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>IDS_COPY_COMPLETE</source>
        <translation>Das Kopieren ist abgeschlossen. Wofür das Ziel kein Feld oder keinen Platz hat, wurde weggelassen.</translation>
    </message>
    <message>
        <source>IDS_COPY_STATUS</source>
        <translation>Kontakte werden kopiert …</translation>
    </message>
    <message>
        <source>IDS_DELETE_GROUP</source>
        <translation>Möchten Sie diese Gruppe mit ihren Untergruppen löschen? Die Kontakte bleiben im Telefonbuch.</translation>
    </message>
    <message>
        <source>IDS_DELETE_STATUS</source>
        <translation>Kontakte werden entfernt …</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <translation>Gruppe löschen</translation>
    </message>
    <message>
        <source>IDS_DEL_GROUP</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <translation>Gruppe umbenennen</translation>
    </message>
    <message>
        <source>IDS_EDIT_GROUP</source>
        <comment>shortcut</comment>
        <translation>F2</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <translation>Kontakt bearbeiten</translation>
    </message>
    <message>
        <source>IDS_EDIT_LINKMAN</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_EMPTY_GROUP</source>
        <translation>Noch keine Kontakte in dieser Gruppe.
Ziehen Sie Kontakte aus der Liste aller Kontakte auf die Gruppe.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_MEMORY</source>
        <translation>Noch keine Kontakte.
Legen Sie mit „Neuer Kontakt“ in der Werkzeugleiste einen an, oder importieren Sie mit der rechten Maustaste eine Datei.</translation>
    </message>
    <message>
        <source>IDS_EMPTY_SEARCH</source>
        <translation>Kein Kontakt passt zur Suche.</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOK</source>
        <translation>Alle Kontakte exportieren …</translation>
    </message>
    <message>
        <source>IDS_EXPORT_PHONEBOOKSEL</source>
        <translation>Ausgewählte Kontakte exportieren …</translation>
    </message>
    <message>
        <source>IDS_FLEXIT_UI_DELETE_ITEM</source>
        <translation>Möchten Sie die ausgewählten Kontakte löschen? Sie verschwinden aus dem Telefonbuch selbst, nicht nur aus einer Gruppe. Was auf dem Computer war, liegt noch 30 Tage im Papierkorb.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_NULL</source>
        <translation>Bitte geben Sie der Gruppe einen Namen.</translation>
    </message>
    <message>
        <source>IDS_GROUP_NAME_REPEAT</source>
        <translation>Eine Gruppe mit diesem Namen gibt es bereits.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_CHARACTER_EMAIL</source>
        <translation>Die E-Mail-Adresse enthält unzulässige Zeichen.</translation>
    </message>
    <message>
        <source>IDS_ILLEGAL_EMAIL</source>
        <translation>Das ist keine gültige E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>IDS_IMPORT_DEVICEFULL</source>
        <translation>Der Speicher ist voll. Importierte Kontakte: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_IMPORTED_NUMBER</source>
        <translation>, importiert: </translation>
    </message>
    <message>
        <source>IDS_IMPORT_PHONEBOOK</source>
        <translation>Kontakte importieren …</translation>
    </message>
    <message>
        <source>IDS_IMPORT_STATUS</source>
        <translation>Kontakte werden importiert …</translation>
    </message>
    <message>
        <source>IDS_IMPORT_TOTAL_NUMBER</source>
        <translation>Gefundene Kontakte: </translation>
    </message>
    <message>
        <source>IDS_INIT_DEV_UNDERWAY</source>
        <translation>Das Gerät wird noch vorbereitet. Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>IDS_LOCAL_PHONEBOOKUI</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>IDS_MAP_CAPTION</source>
        <translation>Spalten und Felder zuordnen</translation>
    </message>
    <message>
        <source>IDS_MAP_TIPSINFO</source>
        <translation>Ziehen Sie jede Spalte links auf das Feld, das sie aufnehmen soll. Die Entf-Taste leert ein Feld.</translation>
    </message>
    <message>
        <source>IDS_MOVE_COMPLETE</source>
        <translation>Das Verschieben ist abgeschlossen.</translation>
    </message>
    <message>
        <source>IDS_MOVE_REC_DEV_FULL</source>
        <translation>Der Speicher ist voll. Kopierte Einträge: </translation>
    </message>
    <message>
        <source>IDS_MOVE_STATUS</source>
        <translation>Kontakte werden verschoben …</translation>
    </message>
    <message>
        <source>IDS_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_NORECORDSELECT</source>
        <translation>Es ist kein Kontakt ausgewählt.</translation>
    </message>
    <message>
        <source>IDS_NV</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_PHONE_TYPE</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>IDS_PHONE_VALUE</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <translation>Neuer Kontakt</translation>
    </message>
    <message>
        <source>IDS_PMBTN_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>IDS_PMBTN_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <translation>Kontakte löschen</translation>
    </message>
    <message>
        <source>IDS_PMBTN_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <translation>Aus Outlook Express importieren</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <translation>Aus Outlook importieren</translation>
    </message>
    <message>
        <source>IDS_PMBTN_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <translation>Neuer Kontakt …</translation>
    </message>
    <message>
        <source>IDS_PMMENU_ADD</source>
        <comment>shortcut</comment>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>IDS_PMMENU_CALL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DELETE</source>
        <comment>shortcut</comment>
        <translation>Del</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <translation>Kontakt bearbeiten …</translation>
    </message>
    <message>
        <source>IDS_PMMENU_DETAIL</source>
        <comment>shortcut</comment>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <translation>Aus Outlook Express importieren …</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOE</source>
        <comment>shortcut</comment>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <translation>Aus Outlook importieren …</translation>
    </message>
    <message>
        <source>IDS_PMMENU_IMPORT_FROM_MOO</source>
        <comment>shortcut</comment>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>IDS_PMMENU_REMFRGRP</source>
        <translation>Aus der Gruppe entfernen</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <translation>Multimedia-Nachricht …</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <translation>Textnachricht …</translation>
    </message>
    <message>
        <source>IDS_PMMENU_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_PMMENU_VIDEO_CALL</source>
        <translation>Videoanruf</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>IDS_PMTOOLBAR_SEARCH</source>
        <comment>shortcut</comment>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Telefonbuch</translation>
    </message>
    <message>
        <source>IDS_READ_FAILED</source>
        <translation>Die Kontakte lassen sich gerade nicht lesen.
Das heißt nicht, dass sie weg sind.</translation>
    </message>
    <message>
        <source>IDS_RECORD_INFO</source>
        <translation>Kontakt bearbeiten</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <translation>Multimedia-Nachricht senden …</translation>
    </message>
    <message>
        <source>IDS_SEND_MMS</source>
        <comment>shortcut</comment>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <translation>Textnachricht senden …</translation>
    </message>
    <message>
        <source>IDS_SEND_MSG</source>
        <comment>shortcut</comment>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>IDS_SIM</source>
        <translation>%s-Karte</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTFAILURE_COUNT</source>
        <translation>Die Kontakte konnten nicht exportiert werden.</translation>
    </message>
    <message>
        <source>IDS_SMS_EXPORTSUCCESS_COUNT</source>
        <translation>Die Kontakte wurden exportiert.</translation>
    </message>
    <message>
        <source>IDS_SMS_IMPORTFAILURE_COUNT</source>
        <translation>Die Kontakte konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>IDS_STR_MAKECALLFAILED</source>
        <translation>Der Anruf konnte nicht begonnen werden.</translation>
    </message>
    <message>
        <source>IDS_STR_REPEARTEDNUMBER</source>
        <translation>Ein anderer Kontakt hat diese Nummer bereits. Möchten Sie den Kontakt trotzdem speichern?</translation>
    </message>
    <message>
        <source>IDS_STR_STATINFORMATION</source>
        <translation>Nummern: %d, ausgewählt: %d</translation>
    </message>
    <message>
        <source>IDS_SUCCESS_COUNT</source>
        <translation>, erfolgreich: </translation>
    </message>
    <message>
        <source>IDS_TOTAL_COUNT</source>
        <translation>Einträge: </translation>
    </message>
    <message>
        <source>IDS_UNSUCCESS</source>
        <translation>Der Kontakt konnte nicht gespeichert werden. Bitte überprüfen Sie die Angaben und ob der Datenträger voll ist.</translation>
    </message>
    <message>
        <source>ID_STR_BUSINESS_PHONE</source>
        <translation>Büro</translation>
    </message>
    <message>
        <source>ID_STR_EMAIL</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>ID_STR_HOME_PHONE</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>ID_STR_MOBILE_PHONE</source>
        <translation>Mobil</translation>
    </message>
    <message>
        <source>ID_STR_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>ID_STR_NOTES</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
</context>
<context>
    <name>SMSUIPlugin</name>
    <message>
        <source>IDS_ADD</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>IDS_ADD_RECIPIENTS</source>
        <translation>Empfänger hinzufügen …</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER</source>
        <translation>„%1“ ist keine Telefonnummer: Sie besteht aus Ziffern, einem Plus davor, * und #.</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER_NAME</source>
        <translation>„%1“ ist keine Telefonnummer. Wählen Sie den Kontakt in der Liste, die sich beim Tippen öffnet.</translation>
    </message>
    <message>
        <source>IDS_BY_NAME</source>
        <translation>Nach Namen …</translation>
    </message>
    <message>
        <source>IDS_BY_NAME_TITLE</source>
        <translation>Empfänger nach Namen</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>IDS_CLOSE_QUESTION</source>
        <translation>Die Nachricht wurde nicht gesendet. Was soll mit ihr geschehen?</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>IDS_DRAFT_KEPT</source>
        <translation>SMS als Entwurf aufgehoben</translation>
    </message>
    <message>
        <source>IDS_IN_OUTBOX</source>
        <translation>SMS an %1 Empfänger in den Postausgang gelegt</translation>
    </message>
    <message>
        <source>IDS_KEEP_FAILED</source>
        <translation>Der Entwurf konnte nicht aufgehoben werden.</translation>
    </message>
    <message>
        <source>IDS_LENGTH</source>
        <translation>Zeichen: %1, Nachrichten: %2</translation>
    </message>
    <message>
        <source>IDS_LENGTH_TOTAL</source>
        <translation>an %1 Empfänger: zusammen %2</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>Nummer speichern …</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>IDS_SEND</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>IDS_SEND_FAILED</source>
        <translation>Die Nachricht konnte nicht in den Postausgang gelegt werden.</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP</source>
        <translation>Nachricht in den Postausgang legen</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP_REAL</source>
        <translation>Nachricht über das Modem senden</translation>
    </message>
    <message>
        <source>IDS_SUBJECT</source>
        <translation>Betreff:</translation>
    </message>
    <message>
        <source>IDS_TEXT</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>Neue SMS</translation>
    </message>
    <message>
        <source>IDS_TO</source>
        <translation>An:</translation>
    </message>
</context>
<context>
    <name>MMSUIPlugin</name>
    <message>
        <source>IDS_ADD</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>IDS_ADD_RECIPIENTS</source>
        <translation>Empfänger hinzufügen …</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER</source>
        <translation>„%1“ ist keine Telefonnummer: Sie besteht aus Ziffern, einem Plus davor, * und #.</translation>
    </message>
    <message>
        <source>IDS_BAD_NUMBER_NAME</source>
        <translation>„%1“ ist keine Telefonnummer. Wählen Sie den Kontakt in der Liste, die sich beim Tippen öffnet.</translation>
    </message>
    <message>
        <source>IDS_BY_NAME</source>
        <translation>Nach Namen …</translation>
    </message>
    <message>
        <source>IDS_BY_NAME_TITLE</source>
        <translation>Empfänger nach Namen</translation>
    </message>
    <message>
        <source>IDS_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>IDS_CLOSE_QUESTION</source>
        <translation>Die Nachricht wurde nicht gesendet. Was soll mit ihr geschehen?</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>IDS_DRAFT_KEPT</source>
        <translation>MMS als Entwurf aufgehoben</translation>
    </message>
    <message>
        <source>IDS_IN_OUTBOX</source>
        <translation>MMS an %1 Empfänger in den Postausgang gelegt</translation>
    </message>
    <message>
        <source>IDS_KEEP_DRAFT</source>
        <translation>Als Entwurf aufheben</translation>
    </message>
    <message>
        <source>IDS_KEEP_FAILED</source>
        <translation>Der Entwurf konnte nicht aufgehoben werden.</translation>
    </message>
    <message>
        <source>IDS_NO_ROAD</source>
        <translation>Multimedia-Nachrichten lassen sich über ModemManager nicht senden.</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>Nummer speichern …</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>IDS_SEND</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>IDS_SEND_FAILED</source>
        <translation>Die Nachricht konnte nicht in den Postausgang gelegt werden.</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP</source>
        <translation>Nachricht in den Postausgang legen</translation>
    </message>
    <message>
        <source>IDS_SEND_TIP_REAL</source>
        <translation>Nachricht als Entwurf aufheben</translation>
    </message>
    <message>
        <source>IDS_SUBJECT</source>
        <translation>Betreff:</translation>
    </message>
    <message>
        <source>IDS_TEXT</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>Neue MMS</translation>
    </message>
    <message>
        <source>IDS_TO</source>
        <translation>An:</translation>
    </message>
</context>
<context>
    <name>VoiceCallPlugin</name>
    <message>
        <source>IDS_ANSWER</source>
        <translation>Annehmen</translation>
    </message>
    <message>
        <source>IDS_CALL</source>
        <translation>Anrufen</translation>
    </message>
    <message>
        <source>IDS_CALL_ACTIVE</source>
        <translation>Gespräch läuft</translation>
    </message>
    <message>
        <source>IDS_CALL_BROKEN</source>
        <translation>Gescheitert</translation>
    </message>
    <message>
        <source>IDS_CALL_DIALLING</source>
        <translation>Wird gewählt …</translation>
    </message>
    <message>
        <source>IDS_CALL_ENDED</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>IDS_CALL_ENDED_BY_OTHER</source>
        <translation>Von der Gegenseite beendet</translation>
    </message>
    <message>
        <source>IDS_CALL_FAILED</source>
        <translation>Der Anruf konnte nicht begonnen werden. Prüfen Sie, ob das Gerät online ist und kein anderes Gespräch läuft.</translation>
    </message>
    <message>
        <source>IDS_CALL_FROM_OUTSIDE</source>
        <translation>Eingehend</translation>
    </message>
    <message>
        <source>IDS_CALL_HELD</source>
        <translation>Wird gehalten</translation>
    </message>
    <message>
        <source>IDS_CALL_INCOMING</source>
        <translation>Eingehender Anruf</translation>
    </message>
    <message>
        <source>IDS_CALL_LOST</source>
        <translation>Verbindung verloren</translation>
    </message>
    <message>
        <source>IDS_CALL_MISSED</source>
        <translation>Verpasst</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_ANSWERED</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_CONNECTED</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>IDS_CALL_NOT_KEPT</source>
        <translation>Konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>IDS_CALL_NUMBER</source>
        <translation>Diese Nummer anrufen</translation>
    </message>
    <message>
        <source>IDS_CALL_OUTGOING</source>
        <translation>Ausgehend</translation>
    </message>
    <message>
        <source>IDS_CALL_REFUSED</source>
        <translation>Abgelehnt oder besetzt</translation>
    </message>
    <message>
        <source>IDS_CALL_RINGING</source>
        <translation>Es läutet …</translation>
    </message>
    <message>
        <source>IDS_CALL_SIMULATED</source>
        <translation>Simuliert</translation>
    </message>
    <message>
        <source>IDS_CALL_STATE</source>
        <translation>Anruf läuft, simuliert</translation>
    </message>
    <message>
        <source>IDS_CALL_UNMARKED</source>
        <translation>Unbekannt, ob simuliert</translation>
    </message>
    <message>
        <source>IDS_COLUMN_DURATION</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>IDS_COLUMN_KIND</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_COLUMN_NUMBER</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>IDS_COLUMN_RESULT</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>IDS_COLUMN_TIME</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>IDS_DELETE</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>IDS_DELETE_FAILED</source>
        <translation>Der Anruf konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>IDS_DELETE_QUESTION</source>
        <translation>Möchten Sie den ausgewählten Anruf aus der Liste löschen?</translation>
    </message>
    <message>
        <source>IDS_HANG_UP</source>
        <translation>Auflegen</translation>
    </message>
    <message>
        <source>IDS_HINT</source>
        <translation>Das Gerät ist simuliert: Ein Anruf wird angezeigt, bis Sie auflegen, und niemand hört ihn.</translation>
    </message>
    <message>
        <source>IDS_HINT_REAL</source>
        <translation>Anrufe gehen über Ihr Modem. Ob Sie etwas hören, hängt vom Modem ab.</translation>
    </message>
    <message>
        <source>IDS_MESSAGE</source>
        <translation>Textnachricht …</translation>
    </message>
    <message>
        <source>IDS_SAVE_NUMBER</source>
        <translation>Nummer speichern …</translation>
    </message>
    <message>
        <source>IDS_SEARCH</source>
        <translation>Anrufe durchsuchen</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>Anrufe</translation>
    </message>
    <message>
        <source>IDS_UNKNOWN_NUMBER</source>
        <translation>Unbekannte Nummer</translation>
    </message>
    <message>
        <source>IDS_VIDEO_CALL</source>
        <translation>Videoanruf</translation>
    </message>
</context>
<context>
    <name>VideoCallPlugin</name>
    <message>
        <source>IDS_CALL_STATE</source>
        <translation>Videoanruf läuft, simuliert</translation>
    </message>
    <message>
        <source>IDS_HANG_UP</source>
        <translation>Auflegen</translation>
    </message>
    <message>
        <source>IDS_TITLE</source>
        <translation>Videoanruf</translation>
    </message>
</context>
<context>
    <name>NotifyPlugin</name>
    <message>
        <source>IDS_CARD_CAME</source>
        <translation>Das Telefonbuch der Karte ist da</translation>
    </message>
    <message>
        <source>IDS_CARD_WENT</source>
        <translation>Das Telefonbuch der Karte ist nicht mehr da</translation>
    </message>
    <message>
        <source>IDS_CONTACT_ADDED</source>
        <translation>Kontakt hinzugefügt</translation>
    </message>
    <message>
        <source>IDS_CONTACT_CHANGED</source>
        <translation>Kontakt geändert</translation>
    </message>
    <message>
        <source>IDS_CONTACT_DELETED</source>
        <translation>Kontakt gelöscht</translation>
    </message>
    <message>
        <source>IDS_DEVICE_CAME</source>
        <translation>Das Telefonbuch des Geräts ist da</translation>
    </message>
    <message>
        <source>IDS_DEVICE_WENT</source>
        <translation>Das Telefonbuch des Geräts ist nicht mehr da</translation>
    </message>
    <message>
        <source>IDS_NAMED_ADDED</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>IDS_NAMED_CHANGED</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>IDS_NAMED_DELETED</source>
        <translation>%1 gelöscht</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_ADDED</source>
        <translation>Mehrere Kontakte hinzugefügt</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_CHANGED</source>
        <translation>Mehrere Kontakte geändert</translation>
    </message>
    <message>
        <source>IDS_SEVERAL_DELETED</source>
        <translation>Mehrere Kontakte gelöscht</translation>
    </message>
</context>
</TS>
