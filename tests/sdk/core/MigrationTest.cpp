// Steps from one version of the store to the next. The library's own list grows with its releases; the way of taking
// them is tested with steps made here.

#include <filesystem>
#include <fstream>

#include "store/Schema.h"
#include "support/Check.h"

using namespace orva;
namespace fs = std::filesystem;

namespace
{

std::string newStore()
{
    static int number = 0;
    const fs::path folder = fs::path(std::getenv("LINKHAND_DATA_DIR")) / std::to_string(++number);
    fs::create_directories(folder);
    const std::string path = fs::canonical(folder).string() + "/store.db";
    std::ofstream(path).close();
    Database db(path, Database::Mode::ReadWrite);
    createSchema(db, {"name"}, 1);
    db.execute("INSERT INTO records (name) VALUES ('Anna')");
    return path;
}

void addNick(Database& db)
{
    db.execute("ALTER TABLE records ADD COLUMN nick TEXT NOT NULL DEFAULT ''");
}

void nickFromName(Database& db)
{
    db.execute("UPDATE records SET nick = lower(name)");
}

void breaksDown(Database& db)
{
    db.execute("UPDATE records SET name = 'broken'");
    db.execute("INSERT INTO nowhere VALUES (1)");
}

// What puts a copy aside.
std::function<void()> backUp(Database& db, const std::string& path)
{
    return [&db, path] { backupDatabase(db, path); };
}

} // namespace

TEST(allStepsAreTakenInOrderAfterABackup)
{
    const std::string path = newStore();
    Database db(path, Database::Mode::ReadWrite);
    CHECK(inspectSchema(db, 3) == SchemaState::OlderVersion);
    migrate(db, {addNick, nickFromName}, backUp(db, path + ".before"));
    CHECK_EQ(db.queryInt("PRAGMA user_version"), 3);
    CHECK_EQ(db.queryInt("SELECT count(*) FROM records WHERE nick = 'anna'"), 1);
    CHECK(inspectSchema(db, 3) == SchemaState::Ours);
    Database before(path + ".before", Database::Mode::ReadOnly);
    CHECK_EQ(before.queryInt("PRAGMA user_version"), 1);
    CHECK_EQ(before.queryInt("SELECT count(*) FROM records WHERE name = 'Anna'"), 1);
}

TEST(onlyTheStepsThatAreMissingAreTaken)
{
    const std::string path = newStore();
    Database db(path, Database::Mode::ReadWrite);
    migrate(db, {addNick}, backUp(db, path + ".first"));
    migrate(db, {addNick, nickFromName}, backUp(db, path + ".second"));
    CHECK_EQ(db.queryInt("PRAGMA user_version"), 3);
    CHECK(fs::exists(path + ".second"));
}

TEST(aFailingStepLeavesTheStoreAsItWas)
{
    const std::string path = newStore();
    Database db(path, Database::Mode::ReadWrite);
    long code = 0;
    try {
        migrate(db, {addNick, breaksDown}, backUp(db, path + ".before"));
    } catch (const Failure& failure) {
        code = failure.code();
    }
    CHECK_EQ(code, ORVA_E_STORE);
    CHECK(!db.inTransaction());
    CHECK_EQ(db.queryInt("PRAGMA user_version"), 1);
    CHECK_EQ(db.queryInt("SELECT count(*) FROM records WHERE name = 'Anna'"), 1);
    CHECK_EQ(db.queryInt("SELECT count(*) FROM pragma_table_info('records') WHERE name = 'nick'"), 0);
}

TEST(withoutItsBackupNoStepIsTaken)
{
    const std::string path = newStore();
    Database db(path, Database::Mode::ReadWrite);
    std::ofstream(path + ".before") << "in the way";
    long code = 0;
    try {
        migrate(db, {addNick}, backUp(db, path + ".before"));
    } catch (const Failure& failure) {
        code = failure.code();
    }
    CHECK_EQ(code, ORVA_E_STORE);
    CHECK_EQ(db.queryInt("PRAGMA user_version"), 1);
}

CHECK_MAIN
