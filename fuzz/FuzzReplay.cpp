// SPDX-License-Identifier: BSD-3-Clause
#include "FuzzTarget.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace {

const std::string* current = nullptr; // the input that is running, not owned

/// Shows the input at fault, so that it can be kept.
void showInput(int)
{
    std::fprintf(stderr, "The input, %zu bytes:\n", current->size());
    std::fwrite(current->data(), 1, current->size(), stderr);
    std::fputc('\n', stderr);
}

void feed(const std::string& input)
{
    current = &input;
    fuzzInput(input);
}

/// The files below a folder, always in the same order.
std::vector<std::string> readCorpus(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> inputs;
    for (const std::filesystem::path& path : paths) {
        std::ifstream file(path, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return inputs;
}

/// Makes new inputs of kept ones.
class Mutation {
public:
    Mutation(const std::vector<std::string>& corpus, unsigned int seed)
        : m_corpus(corpus)
        , m_random(seed)
    {
    }

    std::string next()
    {
        std::string input = pick();
        for (std::size_t changes = 1 + below(5); changes > 0 && !input.empty(); --changes)
            change(input);
        return input;
    }

private:
    std::size_t below(std::size_t end) { return static_cast<std::size_t>(m_random()) % end; }
    const std::string& pick() { return m_corpus[below(m_corpus.size())]; }

    void change(std::string& input)
    {
        static const std::string alphabet
            = "0123456789+-.eExX \t\n,[]{}()|:\"\\nabcDEFinfTRUE=@>~^\x80\xc3\xff";
        const std::size_t place = below(input.size());
        switch (below(5)) {
        case 0:
            input.erase(place, 1 + below(4));
            break;
        case 1:
            input.insert(place, 1, alphabet[below(alphabet.size())]);
            break;
        case 2:
            input[place] = alphabet[below(alphabet.size())];
            break;
        case 3:
            input.insert(place, input.substr(below(input.size()), 1 + below(16)));
            break;
        default:
            const std::string& other = pick();
            if (!other.empty())
                input.insert(place, other.substr(below(other.size()), 1 + below(16)));
        }
    }

    const std::vector<std::string>& m_corpus;
    std::mt19937 m_random;
};

} // namespace

/// Replays a folder of kept inputs, then `runs` inputs made of them by small changes, the same ones
/// for the same seed.
int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "Usage: %s FOLDER RUNS SEED\n", argv[0]);
        return 2;
    }
    const std::vector<std::string> corpus = readCorpus(argv[1]);
    if (corpus.empty()) {
        std::fprintf(stderr, "%s: no inputs\n", argv[1]);
        return 2;
    }
    const int runs = std::atoi(argv[2]);
    const auto seed = static_cast<unsigned int>(std::strtoul(argv[3], nullptr, 10));
    std::fprintf(stderr, "%zu kept inputs, %d made of them, seed %u\n", corpus.size(), runs, seed);
    std::signal(SIGABRT, showInput);
    feed(std::string());
    for (const std::string& input : corpus)
        feed(input);
    Mutation mutation(corpus, seed);
    for (int run = 0; run < runs; ++run)
        feed(mutation.next());
    return 0;
}
