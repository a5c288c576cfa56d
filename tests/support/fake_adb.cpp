// The program behind Fake_Adb. It is started through a link in the directory that holds its answers
// and its records.
#include "support/fake_adb.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <optional>
#include <sstream>

namespace {

using velk::Fake_Adb;

std::filesystem::path directory;

// Nothing that a broken test leaves behind lives longer.
constexpr unsigned seconds_to_live = 60;

/// One write each, so that tools that run at once do not mix their records.
void record(const char* name, const std::string& text) {
    const int file = open((directory / name).c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    if (file < 0 || write(file, text.data(), text.size()) < 0) std::abort();
    close(file);
}

std::vector<std::string> behind_global_options(std::vector<std::string> words) {
    std::size_t command = 0;
    while (command < words.size() && words[command].starts_with('-')) {
        const bool takes_a_value =
            std::string("-s -t -H -P -L").find(words[command]) != std::string::npos;
        command += takes_a_value ? 2 : 1;
    }
    words.erase(words.begin(),
                words.begin() + static_cast<std::ptrdiff_t>(std::min(command, words.size())));
    return words;
}

std::optional<std::ifstream> longest_answer(std::vector<std::string> words) {
    for (; !words.empty(); words.pop_back()) {
        std::string joined = words.front();
        for (std::size_t i = 1; i < words.size(); ++i) joined += ' ' + words[i];
        std::ifstream file(Fake_Adb::answer_file(directory, joined), std::ios::binary);
        if (file) return file;
    }
    return {};
}

Fake_Adb::Answer read_answer(std::ifstream file) {
    Fake_Adb::Answer answer;
    char behaviour = 0;
    std::size_t length_of_errors = 0;
    file >> answer.status >> answer.repeat >> behaviour >> length_of_errors;
    file.get();
    answer.behaviour = static_cast<Fake_Adb::Behaviour>(behaviour);
    answer.errors.resize(length_of_errors);
    file.read(answer.errors.data(), static_cast<std::streamsize>(length_of_errors));
    answer.output.assign(std::istreambuf_iterator<char>(file), {});
    return answer;
}

int perform(const Fake_Adb::Answer& answer) {
    std::cerr << answer.errors << std::flush;
    for (unsigned i = 0; i < answer.repeat; ++i) std::cout << answer.output;
    std::cout << std::flush;
    switch (answer.behaviour) {
        case Fake_Adb::Behaviour::ends:
            break;
        case Fake_Adb::Behaviour::crashes:
            std::abort();
        case Fake_Adb::Behaviour::hangs:
            record("hanging", std::to_string(getpid()) + '\0');
            alarm(seconds_to_live);
            for (;;) pause();
        case Fake_Adb::Behaviour::leaves_a_server:
            if (const pid_t server = fork(); server == 0) {
                alarm(seconds_to_live);
                for (;;) pause();
            } else {
                record("servers", std::to_string(server) + '\0');
            }
    }
    return answer.status;
}

}  // namespace

int main(int count, char** values) {
    directory = std::filesystem::path(values[0]).parent_path();
    const std::vector<std::string> words(values + 1, values + count);
    std::string vector;
    for (const std::string& word : words) vector += word + '\0';
    record("calls", vector + std::string(Fake_Adb::end_of_a_call) + '\0');

    std::optional<std::ifstream> file = longest_answer(behind_global_options(words));
    return file ? perform(read_answer(std::move(*file))) : 0;
}
