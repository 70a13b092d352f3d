// SPDX-License-Identifier: Apache-2.0
#include "password.h"

#include "interrupt.h"

#include <CLI/CLI.hpp>

#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <stdexcept>
#include <termios.h>
#include <unistd.h>

namespace kelx::tool {

namespace {

/// The terminal, silent while this lives.
class SilentTerminal {
public:
    SilentTerminal() : descriptor_(::open("/dev/tty", O_RDWR | O_CLOEXEC)) {
        if (descriptor_ < 0 || ::tcgetattr(descriptor_, &before_) != 0) {
            if (descriptor_ >= 0)
                ::close(descriptor_);
            throw std::runtime_error(
                "The database is protected and there is no terminal to ask for its password; "
                "use --password-file.");
        }
        termios silent = before_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(descriptor_, TCSAFLUSH, &silent);
    }
    ~SilentTerminal() {
        ::tcsetattr(descriptor_, TCSAFLUSH, &before_);
        ::close(descriptor_);
    }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;

    void write(const std::string& text) const {
        if (::write(descriptor_, text.data(), text.size()) < 0)
            throw std::runtime_error("The terminal cannot be written to.");
    }
    std::string readLine() const {
        std::string line;
        char c = 0;
        pollfd input{descriptor_, POLLIN, 0};
        while (::poll(&input, 1, -1) == 1 && ::read(descriptor_, &c, 1) == 1 && c != '\n')
            line += c; // a signal ends the waiting
        return line;
    }

private:
    int descriptor_;
    termios before_{};
};

} // namespace

void addPasswordFile(CLI::App& command, std::string& file) {
    command
        .add_option("--password-file", file,
                    "File whose first line is the password (else it is asked on the terminal)")
        ->type_name("FILE");
}

std::string passwordFromFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string line;
    if (!stream || !std::getline(stream, line))
        throw std::runtime_error(file.string() + ": no password can be read");
    if (line.ends_with('\r'))
        line.pop_back();
    if (line.empty())
        throw std::runtime_error(file.string() + ": the password is empty");
    return line;
}

std::string passwordFromTerminal(const std::string& prompt) {
    const InterruptWatch watch; // or the terminal would stay silent
    const SilentTerminal terminal;
    terminal.write(prompt);
    std::string password = terminal.readLine();
    terminal.write("\n");
    watch.check();
    return password;
}

std::unique_ptr<catalog::Dictionary> openDatabase(const std::filesystem::path& database,
                                                  const std::string& passwordFile) {
    catalog::Questions questions;
    questions.password = [&](const std::string& name) {
        return passwordFile.empty() ? passwordFromTerminal("Password of " + name + ": ")
                                    : passwordFromFile(passwordFile);
    };
    questions.dataFolder = [&](const std::string&) -> std::string {
        throw std::runtime_error(database.string() + ": none of its data files is there");
    };
    return catalog::readDictionary(database, questions);
}

} // namespace kelx::tool
