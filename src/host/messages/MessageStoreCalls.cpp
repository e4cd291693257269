#include "messages/MessageStore.h"

QList<StoredCall> MessageStore::Calls(int iSkipped, int iAtMost)
{
    if (m_database.HasMoved() || !m_database.IsOpen()) {
        Refresh();
    }
    QList<StoredCall> listCalls;
    Database::Query query(m_database,
                          "SELECT id, number, type, time, seconds, direction, ending, simulated FROM calls "
                          "ORDER BY time DESC, id DESC LIMIT ? OFFSET ?",
                          QVariantList() << iAtMost << iSkipped);
    while (query.Next()) {
        StoredCall call;
        call.iId = int(query.Number(0));
        call.strNumber = query.Text(1);
        call.iType = int(query.Number(2));
        call.time = QDateTime::fromMSecsSinceEpoch(query.Number(3));
        call.iSeconds = int(query.Number(4));
        call.iDirection = int(query.Number(5));
        call.iEnd = int(query.Number(6));
        call.iSimulated = int(query.Number(7));
        listCalls.append(call);
    }
    return listCalls;
}

bool MessageStore::AddCall(const StoredCall& call)
{
    return change("INSERT INTO calls(number, type, time, seconds, direction, ending, simulated) "
                  "VALUES(?, ?, ?, ?, ?, ?, ?)",
                  QVariantList() << call.strNumber << call.iType << call.time.toMSecsSinceEpoch() << call.iSeconds
                                 << call.iDirection << call.iEnd << call.iSimulated) >= 0;
}

bool MessageStore::RemoveCall(int iId)
{
    return m_database.IsOpen() && change("DELETE FROM calls WHERE id = ?", QVariantList() << iId) == 1;
}

// As takeOver(); an older file is brought to the present form when its rows are here.
void MessageStore::takeOverCalls(Database& source, Database& target, const char* pszDirection)
{
    const qint64 iVersion = source.Number("PRAGMA user_version");
    const char* const pszMarks = iVersion >= 3 ? "direction, ending, simulated"
                                 : iVersion == 2
                                     ? "CASE type WHEN 1 THEN 0 ELSE 2 END, -1, CASE type WHEN 1 THEN 1 ELSE -1 END"
                                     : "0, -1, 1";
    const QByteArray calls =
        QByteArray("SELECT id, number, type, time, seconds, ") + pszMarks + " FROM calls ORDER BY id " + pszDirection;
    Database::Query call(source, calls.constData());
    while (call.Next()) {
        target.Run("INSERT OR IGNORE INTO calls(id, number, type, time, seconds, direction, ending, simulated) "
                   "VALUES(?, ?, ?, ?, ?, ?, ?, ?)",
                   QVariantList() << call.Number(0) << call.Text(1) << call.Number(2) << call.Number(3)
                                  << call.Number(4) << call.Number(5) << call.Number(6) << call.Number(7));
    }
}
