#include "fuzz/fuzz_driver.h"

#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

/// Changes some bytes, takes a stretch out, doubles one, or cuts the end off.
void mutate(std::string& input, std::mt19937& random) {
    for (auto changes = random() % 6 + 1; changes > 0; --changes) {
        const std::size_t at = input.empty() ? 0 : random() % input.size();
        switch (random() % 6) {
            case 0:
                input.resize(at);
                break;
            case 1:
                input.erase(at, random() % 40);
                break;
            case 2:
                input.insert(at, input.substr(at, random() % 40));
                break;
            case 3:
                input.insert(at, 1, "\r\n,\"\0\xFF-9E."[random() % 10]);
                break;
            default:
                if (!input.empty()) input[at] = static_cast<char>(random());
        }
    }
}

}  // namespace

/// FUZZ_TARGET COUNT [SEED]
int main(int count, char** arguments) {
    const long inputs = count > 1 ? std::atol(arguments[1]) : 1000;
    std::mt19937 random(count > 2 ? static_cast<unsigned>(std::atol(arguments[2])) : 1);
    const auto seeds = fuzz_seeds();
    for (long i = 0; i < inputs; ++i) {
        std::string input = seeds[random() % seeds.size()];
        if (i >= static_cast<long>(seeds.size())) mutate(input, random);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    }
    std::printf("%ld inputs\n", inputs);
}
