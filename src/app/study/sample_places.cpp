#include "app/study/sample_places.hpp"

#include <bit>
#include <boost/random/sobol.hpp>

namespace kvt {

namespace {

/// The finalizer of the generator SplitMix64: every bit of a number decides over every bit of the
/// answer. Source: Steele, Lea and Flood, "Fast splittable pseudorandom number generators", 2014.
std::uint64_t mixed(std::uint64_t number) {
    number += 0x9E3779B97F4A7C15U;
    number = (number ^ (number >> 30U)) * 0xBF58476D1CE4E5B9U;
    number = (number ^ (number >> 27U)) * 0x94D049BB133111EBU;
    return number ^ (number >> 31U);
}

constexpr unsigned ROUNDS = 6;

/// The leading 53 bits as a fraction of 1: less than 1 in a double, too.
double fraction(std::uint64_t bits) {
    return static_cast<double>(bits >> 11U) * 0x1p-53;
}

}  // namespace

number_shuffle::number_shuffle(std::uint64_t count, std::uint64_t key) : count_(count), key_(key) {
    const auto bits = static_cast<unsigned>(std::bit_width(count - 1));
    half_bits_ = bits < 2 ? 1 : (bits + 1) / 2;
}

std::uint64_t number_shuffle::round_trip(std::uint64_t number) const {
    const std::uint64_t mask = (std::uint64_t{1} << half_bits_) - 1;
    std::uint64_t left = number >> half_bits_;
    std::uint64_t right = number & mask;
    for (unsigned round = 0; round < ROUNDS; ++round) {
        const std::uint64_t next = left ^ (mixed(key_ + mixed(right + (round << 1U) + 1)) & mask);
        left = right;
        right = next;
    }
    return (left << half_bits_) | right;
}

std::uint64_t number_shuffle::operator()(std::uint64_t number) const {
    std::uint64_t shuffled = round_trip(number);
    while (shuffled >= count_) {
        shuffled = round_trip(shuffled);
    }
    return shuffled;
}

double uniform_number(std::uint64_t key, std::uint64_t counter) {
    return fraction(mixed(key ^ mixed(counter)));
}

std::uint64_t dimension_key(std::uint64_t seed, std::size_t dimension) {
    return mixed(mixed(seed) + dimension);
}

std::vector<double> latin_place(std::uint64_t number, std::uint64_t count, std::size_t dimensions,
                                std::uint64_t seed) {
    std::vector<double> place;
    for (std::size_t i = 0; i < dimensions; ++i) {
        const std::uint64_t key = dimension_key(seed, i);
        const auto interval = static_cast<double>(number_shuffle(count, key)(number));
        place.push_back((interval + uniform_number(key, number)) / static_cast<double>(count));
    }
    return place;
}

std::vector<double> sobol_place(std::uint64_t number, std::size_t dimensions, std::uint64_t seed) {
    boost::random::sobol sequence(dimensions);
    if (number > 0) {
        sequence.seed(number - 1);  // its first point is the second one, behind 0
    }
    std::vector<double> place;
    for (std::size_t i = 0; i < dimensions; ++i) {
        const std::uint64_t shift = seed == 0 ? 0 : dimension_key(seed, i);
        place.push_back(fraction((number == 0 ? 0 : sequence()) ^ shift));
    }
    return place;
}

}  // namespace kvt
