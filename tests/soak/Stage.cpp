#include "tests/soak/Stage.h"

#include "app/Program.h"
#include "console/Console.h"
#include "data/DataSource.h"

#include <csignal>
#include <cstdio>
#include <iostream>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varnik::soak {
namespace fs = std::filesystem;

// ---- The soak ----

Soak::Soak(const Options& given)
    : options(given),
      folder_(fs::temp_directory_path() / ("varnik-soak-" + std::to_string(getpid()))),
      chance_(given.seed) {
    fs::remove_all(folder_); // of a killed process of the same number
    fs::create_directories(folder_);
}

Soak::~Soak() {
    std::error_code ignored;
    if (options.keep && faults_ > 0)
        std::cout << "kept: " << folder_.string() << '\n';
    else
        fs::remove_all(folder_, ignored);
}

bool Soak::GoesOn() {
    if (options.until) return std::chrono::steady_clock::now() < *options.until && faults_ < 20;
    return round_++ < options.rounds;
}

bool Soak::Holds(bool good, const std::string& otherwise) {
    if (good) return true;
    ++faults_;
    std::cout << "FAULT " << otherwise << std::endl;
    return false;
}

fs::path Soak::Copy(const std::string& from, const std::string& to) const {
    fs::remove_all(Folder(to));
    fs::copy(Folder(from), Folder(to), fs::copy_options::recursive);
    return Folder(to);
}

fs::path Database(const fs::path& folder) { return data::DatabaseFile(folder); }

// ---- A script ----

namespace {

// Cuts what a script prints into lines: announcements go to the watcher at once.
class Lines : public std::streambuf {
public:
    Lines(const std::function<void(const std::string&)>& watcher, std::string& said)
        : watcher_(watcher), said_(said) {}

protected:
    int overflow(int c) override {
        if (c != '\n') return line_ += static_cast<char>(c), c;
        if (line_.starts_with("-- ")) {
            if (watcher_) watcher_(line_.substr(3));
        } else
            said_ += line_ + "\n";
        line_.clear();
        return c;
    }

private:
    const std::function<void(const std::string&)>& watcher_;
    std::string& said_;
    std::string line_;
};

class WatchedDesktop : public console::ConsoleDesktop {
public:
    WatchedDesktop(fs::path folder, const Play& play) : ConsoleDesktop(std::move(folder)), play_(play) {}
    Answer MessageBox(const Box& box) override {
        if (play_.onBox) play_.onBox(box);
        if (play_.onFailure && box.buttons == Buttons::AbortRetryIgnore) return play_.onFailure(box);
        return ConsoleDesktop::MessageBox(box);
    }

private:
    const Play& play_;
};

} // namespace

int Run(const Play& play, const fs::path& folder, std::string& said) {
    Lines lines(play.onLine, said);
    std::ostream out(&lines);
    WatchedDesktop desktop(folder, play);
    Program program(desktop, Regional{});
    console::Host host{program.Access(), program.Settings(), [&] { program.Start(); }};
    return console::Console(std::move(host), desktop, out).Run(play.script, play.arguments);
}

// ---- Processes ----

Child::Child(const std::function<int(int)>& body) {
    int ends[2] = {};
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    std::cout.flush();
    process_ = fork();
    if (process_ == 0) {
        close(ends[0]);
        int status = 99;
        try {
            status = body(ends[1]);
        } catch (const std::exception& failure) {
            Tell(ends[1], std::string("broke: ") + failure.what());
        }
        _exit(status);
    }
    close(ends[1]);
    in_ = ends[0];
}

Child::~Child() {
    if (process_ > 0) {
        Kill();
        Wait();
    }
    close(in_);
}

std::optional<std::string> Child::Line(int timeoutMs) {
    timedOut_ = false;
    for (;;) {
        if (const auto end = read_.find('\n'); end != std::string::npos) {
            std::string line = read_.substr(0, end);
            read_.erase(0, end + 1);
            return line;
        }
        pollfd waiting{in_, POLLIN, 0};
        if (timeoutMs >= 0 && poll(&waiting, 1, timeoutMs) == 0) {
            timedOut_ = true;
            return std::nullopt;
        }
        char buffer[65536];
        const ssize_t got = read(in_, buffer, sizeof buffer);
        if (got <= 0) return std::nullopt;
        read_.append(buffer, static_cast<std::size_t>(got));
    }
}

void Child::Hear(
    const std::function<void(const std::string&, std::istringstream&, const std::string&)>& said) {
    while (const auto line = Line()) {
        std::istringstream words(*line);
        std::string first;
        words >> first;
        said(first, words, *line);
    }
}

void Child::Kill() { kill(process_, SIGKILL); }

int Child::Wait() {
    if (process_ <= 0) return -1;
    int status = -1;
    waitpid(process_, &status, 0);
    process_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void Tell(int out, const std::string& line) {
    const std::string whole = line + "\n";
    for (std::size_t done = 0; done < whole.size();) {
        const ssize_t wrote = write(out, whole.data() + done, whole.size() - done);
        if (wrote <= 0) _exit(98);
        done += static_cast<std::size_t>(wrote);
    }
}

std::string PlayApart(const Play& play, const fs::path& folder) {
    Child child([&](int out) {
        std::string said;
        const int status = Run(play, folder, said);
        if (status != 0) Tell(out, said);
        return status;
    });
    std::string said;
    while (const auto line = child.Line()) said += *line + "\n";
    const int status = child.Wait();
    if (status == 0) return "";
    return said.empty() ? "exit status " + std::to_string(status) : said;
}

} // namespace varnik::soak
