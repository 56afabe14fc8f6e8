// Database files that are not what they should be, where the program looks for its own and where a restore
// looks for a backup. A clear message, nothing overwritten; what can be worked with is worked with; never a
// crash or a hang, whatever the bytes are.

#include "tests/soak/Books.h"
#include "tests/soak/Stage.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

namespace varnik::soak {
namespace {

namespace fs = std::filesystem;

std::string Bytes(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
void Write(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

// What the program may do with such a file.
enum class May {
    Refuse, // it says so when it starts, and touches nothing
    Work,   // all goes as with any other
    Either, // it depends on the bytes
};
struct Sample {
    const char* name;
    May may;
    void (*make)(Soak& soak, const fs::path& file); // of a sound one
    bool asReader = false;                          // by a user who may read and not write, or not even read
};

void Random(Soak& soak, std::string& bytes, std::size_t from, std::size_t count) {
    for (std::size_t i = 0; i < count && from < bytes.size(); ++i)
        bytes[from + static_cast<std::size_t>(soak.Chance(static_cast<long>(bytes.size() - from)))] =
            static_cast<char>(soak.Chance(256));
}

std::string OneOf(Soak& soak, BookReader& reader, const std::string& sql) {
    const auto rows = reader.Rows(sql);
    return rows[static_cast<std::size_t>(soak.Chance(static_cast<long>(rows.size())))][0];
}

void Drop(Soak& soak, const fs::path& file, const char* type, const char* named) {
    BookReader reader(file);
    const std::string name = OneOf(soak, reader,
                                   std::string("SELECT name FROM sqlite_master WHERE type = '") + type +
                                       "' AND name LIKE '" + named + "'");
    reader.Rows(std::string("DROP ") + type + " \"" + name + "\"");
}

constexpr Sample Samples[] = {
    {"missing", May::Work, [](Soak&, const fs::path& file) { fs::remove(file); }},
    {"empty", May::Refuse, [](Soak&, const fs::path& file) { Write(file, ""); }},
    {"a text", May::Refuse,
     [](Soak& soak, const fs::path& file) {
         Write(file, std::string(static_cast<std::size_t>(1 + soak.Chance(20000)), 'x'));
     }},
    {"any bytes", May::Refuse,
     [](Soak& soak, const fs::path& file) {
         std::string bytes(static_cast<std::size_t>(1 + soak.Chance(50000)), ' ');
         Random(soak, bytes, 0, bytes.size());
         bytes[0] = '?';
         Write(file, bytes);
     }},
    {"a folder", May::Refuse,
     [](Soak&, const fs::path& file) {
         fs::remove(file);
         fs::create_directory(file);
     }},
    {"cut off", May::Either,
     [](Soak& soak, const fs::path& file) {
         fs::resize_file(file,
                         static_cast<std::uintmax_t>(soak.Chance(static_cast<long>(fs::file_size(file)))));
     }},
    {"a damaged head", May::Either,
     [](Soak& soak, const fs::path& file) {
         std::string bytes = Bytes(file), head = bytes.substr(0, 200);
         Random(soak, head, static_cast<std::size_t>(soak.Chance(100)),
                static_cast<std::size_t>(1 + soak.Chance(30)));
         Write(file, head + bytes.substr(200));
     }},
    {"damaged", May::Either,
     [](Soak& soak, const fs::path& file) {
         std::string bytes = Bytes(file);
         Random(soak, bytes, 100, static_cast<std::size_t>(1 + soak.Chance(3000)));
         Write(file, bytes);
     }},
    {"a page of nothing", May::Either,
     [](Soak& soak, const fs::path& file) {
         std::string bytes = Bytes(file);
         const auto page = static_cast<std::size_t>(soak.Chance(static_cast<long>(bytes.size() / 4096)));
         bytes.replace(page * 4096, 4096, 4096, '\0');
         Write(file, bytes);
     }},
    {"another program's", May::Refuse,
     [](Soak&, const fs::path& file) {
         fs::remove(file);
         Write(file, "");
         BookReader(file).Rows("CREATE TABLE songs (title TEXT)");
     }},
    {"without a table", May::Refuse,
     [](Soak& soak, const fs::path& file) { Drop(soak, file, "table", "%"); }},
    {"without a stored query", May::Refuse,
     [](Soak& soak, const fs::path& file) { Drop(soak, file, "view", "%"); }},
    {"without a key", May::Refuse,
     [](Soak& soak, const fs::path& file) { Drop(soak, file, "index", "%.%"); }},
    {"without a look-up index", May::Work,
     [](Soak& soak, const fs::path& file) {
         BookReader reader(file);
         reader.Rows("DROP INDEX \"" +
                     OneOf(soak, reader,
                           "SELECT name FROM sqlite_master WHERE type = 'index' AND sql IS "
                           "NOT NULL AND name NOT LIKE '%.%'") +
                     "\"");
     }},
    {"without a column", May::Refuse,
     [](Soak& soak, const fs::path& file) {
         // As an older version would have made the table: built anew without the column.
         BookReader reader(file);
         const std::string table = OneOf(soak, reader, "SELECT name FROM sqlite_master WHERE type = 'table'");
         std::string kept;
         const auto columns = reader.Rows("SELECT name FROM pragma_table_info('" + table + "')");
         for (std::size_t i = 0; i + 1 < columns.size(); ++i)
             kept += (i == 0 ? "\"" : ", \"") + columns[i][0] + "\"";
         reader.Rows("CREATE TABLE older AS SELECT " + kept + " FROM \"" + table + "\"");
         reader.Rows("PRAGMA legacy_alter_table = ON");
         reader.Rows("DROP TABLE \"" + table + "\"");
         reader.Rows("ALTER TABLE older RENAME TO \"" + table + "\"");
     }},
    {"beside a stray journal", May::Work,
     [](Soak& soak, const fs::path& file) {
         std::string bytes(static_cast<std::size_t>(soak.Chance(20000)), ' ');
         Random(soak, bytes, 0, bytes.size());
         Write(file.string() + "-journal", bytes);
     }},
    {"beside a stray log", May::Work,
     [](Soak& soak, const fs::path& file) {
         std::string bytes(static_cast<std::size_t>(soak.Chance(20000)), ' ');
         Random(soak, bytes, 0, bytes.size());
         Write(file.string() + "-wal", bytes);
     }},
    {"not to be read", May::Refuse,
     [](Soak&, const fs::path& file) { fs::permissions(file, fs::perms::none); }, true},
    {"not to be written", May::Either,
     [](Soak&, const fs::path& file) { fs::permissions(file, fs::perms(0444)); }, true},
    {"in a folder without rights", May::Either,
     [](Soak&, const fs::path& file) { fs::permissions(file.parent_path(), fs::perms(0555)); }, true},
    {"in a closed folder", May::Refuse,
     [](Soak&, const fs::path& file) { fs::permissions(file.parent_path(), fs::perms::none); }, true},
};

constexpr const char* FolderNames[] = {"plain", "Toko Kopi & Teh, lantai 2", "магазин 店 Ünï",
                                       "don't; stop=1 %20 #"};

struct Found {
    std::string word, text;
    int status = 0;
};

constexpr int HangsAfterMs = 60000;

Found Meet(const Play& play, const fs::path& folder, bool asReader) {
    Child child([&](int out) {
        if (asReader && geteuid() == 0 && (setegid(65534) != 0 || seteuid(65534) != 0)) return 97;
        Play watched = play;
        watched.onLine = [&](const std::string& line) { Tell(out, line); };
        std::string said;
        const int status = Run(watched, folder, said);
        if (status != 0) Tell(out, "said " + said);
        return status;
    });
    Found found;
    while (const auto line = child.Line(HangsAfterMs)) {
        if (!found.word.empty()) continue;
        const auto blank = line->find(' ');
        found.word = line->substr(0, blank);
        if (blank != std::string::npos) found.text = line->substr(blank + 1);
    }
    if (child.TimedOut()) {
        child.Kill();
        found.word = "hangs";
    }
    found.status = child.Wait();
    return found;
}

std::vector<std::string> Names(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code denied;
    for (const auto& entry : fs::directory_iterator(folder, denied))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

void Open(const fs::path& folder) {
    std::error_code ignored;
    fs::permissions(folder / "Data", fs::perms(0777), ignored);
}

// A copy beside the shop: the reader without rights may have none on the folder of the scripts.
fs::path Script(const Soak& soak) { return soak.Folder("files.lua"); }

using Outcomes = std::map<std::string, std::map<std::string, long>>; // by kind of file and what came of it

void AsOwn(Soak& soak, const Sample& sample, Outcomes& outcomes) {
    const std::string name = FolderNames[static_cast<std::size_t>(soak.Chance(std::size(FolderNames)))];
    const auto folder = soak.Copy("shop", name), file = Database(folder);
    sample.make(soak, file);
    const std::string before = fs::is_regular_file(file) ? Bytes(file) : "";
    std::optional<Books> own;
    if (std::string_view(sample.name).starts_with("without")) own = BookReader(file).Read();
    const auto namesBefore = Names(folder / "Data");
    const auto found = Meet({Script(soak), {"work"}}, folder, sample.asReader);
    Open(folder);
    ++outcomes[sample.name][found.word];
    const std::string where =
        std::string(sample.name) + " in \"" + name + "\": " + found.word + " " + found.text + ": ";
    soak.Holds(found.status == 0, where + "exit status " + std::to_string(found.status));
    soak.Holds(found.word == "refused" || found.word == "worked" || found.word == "trouble", where + "?");
    if (sample.may == May::Refuse) soak.Holds(found.word == "refused", where + "it should be refused");
    if (sample.may == May::Work) soak.Holds(found.word == "worked", where + "it should work");
    if (found.word == "trouble")
        soak.Holds(found.text.find(".lua:") == std::string::npos, where + "nothing says why");
    if (found.word != "refused") return;
    soak.Holds(found.text.find("Varnik.mdb") != std::string::npos, where + "the message names no file");
    // A database of this program may have got its log, and keeps what it holds; other files keep every byte.
    if (before.empty() || Bytes(file) == before)
        soak.Holds(Names(folder / "Data") == namesBefore, where + "something else stands beside it");
    else
        soak.Holds(own && BookReader(file).Read() == *own, where + "the file was changed");
}

void AsBackup(Soak& soak, const Sample& sample, Outcomes& outcomes) {
    const auto folder = soak.Copy("shop", "restoring"), backup = soak.Folder("backup") / "Varnik.mdb";
    fs::remove_all(backup.parent_path());
    fs::create_directories(backup.parent_path());
    fs::copy_file(Database(folder), backup);
    sample.make(soak, backup);
    const Books before = BookReader(Database(folder)).Read();
    const auto found = Meet({Script(soak), {"restore", backup.string()}}, folder, false);
    std::error_code ignored;
    fs::permissions(backup.parent_path(), fs::perms(0777), ignored);
    ++outcomes[sample.name]["as a backup " + found.word];
    const std::string where =
        std::string("backup ") + sample.name + ": " + found.word + " " + found.text + ": ";
    soak.Holds(found.status == 0, where + "exit status " + std::to_string(found.status));
    soak.Holds(found.word == "kept" || found.word == "restored", where + "?");
    if (sample.may == May::Refuse && !sample.asReader)
        soak.Holds(found.word == "kept", where + "it should be refused");
    BookReader reader(Database(folder));
    soak.Holds(reader.Integrity() == "ok", where + "the database is damaged");
    if (found.word == "kept") soak.Holds(reader.Read() == before, where + "the database was changed");
    if (found.word == "restored") {
        const auto next = Meet({Script(soak), {"work"}}, folder, false);
        soak.Holds(next.word == "worked", where + "then " + next.word + " " + next.text);
    }
}

} // namespace

long Files(Soak& soak) {
    fs::create_directories(soak.Folder("shop"));
    const std::string failed =
        PlayApart({soak.options.scripts / "day.lua", {"1", "0", "first"}}, soak.Folder("shop"));
    if (!soak.Holds(failed.empty(), "the shop cannot be opened: " + failed)) return 1;
    // One file, without a log beside it; whoever comes may use it.
    LeaveTheLog(Database(soak.Folder("shop")));
    for (const auto& entry : fs::recursive_directory_iterator(soak.Folder("shop")))
        fs::permissions(entry.path(), fs::perms(fs::is_directory(entry.path()) ? 0777 : 0666));
    fs::permissions(soak.Folder("shop"), fs::perms(0777));
    fs::copy_file(soak.options.scripts / "files.lua", Script(soak));
    fs::permissions(Script(soak), fs::perms(0644));

    Outcomes outcomes;
    long tried = 0;
    for (std::size_t next = 0; soak.GoesOn(); ++next, ++tried) {
        const Sample& sample = Samples[next / 2 % std::size(Samples)];
        next % 2 == 0 ? AsOwn(soak, sample, outcomes) : AsBackup(soak, sample, outcomes);
    }
    for (const auto& [kind, words] : outcomes) {
        std::cout << kind << ':';
        for (const auto& [word, count] : words) std::cout << ' ' << word << ' ' << count;
        std::cout << '\n';
    }
    std::cout << tried << " files of " << std::size(Samples) << " kinds, " << soak.Faults() << " faults\n";
    return soak.Faults();
}

} // namespace varnik::soak
