// A tool named `adb` in a directory of its own, which says what a test tells it to say, can behave
// badly, and remembers what it was asked.
#pragma once

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace velk {

class Fake_Adb {
  public:
    enum class Behaviour {
        ends,
        crashes,         // ends by SIGABRT
        hangs,           // never ends by itself
        leaves_a_server  // ends; a child of its own keeps the streams open
    };

    struct Answer {
        std::string output{};
        std::string errors{};
        int status = 0;
        Behaviour behaviour = Behaviour::ends;
        unsigned repeat = 1;   // the output is written so often
        std::string pulled{};  // the content of the file that a pull puts into its folder
    };

    /// Without answers of its own the tool prints nothing and ends with 0.
    Fake_Adb() {
        std::string pattern = (std::filesystem::temp_directory_path() / "fake_adb.XXXXXX").string();
        directory_ = mkdtemp(pattern.data());
        std::filesystem::create_symlink(VELK_FAKE_ADB, tool());
    }
    ~Fake_Adb() {
        for (const std::string& server : fields("servers")) kill(std::stoi(server), SIGKILL);
        std::error_code failed;
        std::filesystem::remove_all(directory_, failed);
    }
    Fake_Adb(const Fake_Adb&) = delete;
    Fake_Adb& operator=(const Fake_Adb&) = delete;

    std::string directory() const { return directory_.string(); }
    std::string tool() const { return (directory_ / "adb").string(); }

    /// What the tool does from now on when its words behind the global options begin with these,
    /// as in "devices" or "uninstall velk.phone.android". The longest such answer counts.
    void answer(const std::string& words, const Answer& answer) const {
        // Renamed into place: a tool that runs meanwhile sees the old answer or the new one.
        const std::filesystem::path written = directory_ / "written";
        std::ofstream(written, std::ios::binary)
            << "status=" << answer.status << " repeat=" << answer.repeat
            << " behaviour=" << static_cast<int>(answer.behaviour)
            << " pulled=" << quoted(answer.pulled) << " errors=" << quoted(answer.errors)
            << " output=" << quoted(answer.output);
        std::string name = "answer " + words;
        std::replace(name.begin(), name.end(), '/', '%');
        std::filesystem::rename(written, directory_ / name);
    }
    void answer(const std::string& words, const char* output) const {
        answer(words, Answer{.output = output});
    }

    /// The argument vectors of all calls so far (without the tool's own path), in their order.
    std::vector<std::vector<std::string>> calls() const {
        std::vector<std::vector<std::string>> vectors;
        bool at_start = true;
        for (std::string& word : fields("calls")) {
            if (at_start) vectors.emplace_back();
            at_start = word == "\n";
            if (!at_start) vectors.back().push_back(std::move(word));
        }
        return vectors;
    }

    /// The same, each vector as one line: its words joined by blanks.
    std::vector<std::string> call_lines() const {
        std::vector<std::string> lines;
        for (const std::vector<std::string>& words : calls()) {
            std::string& line = lines.emplace_back();
            for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
        }
        return lines;
    }

    /// True while a tool that was told to hang has not been ended.
    bool is_hanging() const {
        for (const std::string& tool : fields("hanging")) {
            std::ifstream file("/proc/" + tool + "/stat");
            std::string number, name, state;
            if (file >> number >> name >> state && state != "Z" && state != "X") return true;
        }
        return false;
    }

  private:
    /// As one word of the shell that reads it.
    static std::string quoted(const std::string& text) {
        std::string word = "'";
        for (const char byte : text) word += byte == '\'' ? "'\\''" : std::string(1, byte);
        return word + "'";
    }

    /// The texts of a file in which each ends in a NUL.
    std::vector<std::string> fields(const char* name) const {
        std::ifstream file(directory_ / name, std::ios::binary);
        std::vector<std::string> texts;
        for (std::string text; std::getline(file, text, '\0');) texts.push_back(text);
        return texts;
    }

    std::filesystem::path directory_;
};

}  // namespace velk
