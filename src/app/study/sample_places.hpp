// sample_places: the places of designs in the unit cube, each found from its number alone, so that
// any part of a study can be calculated anywhere.
// Source: Joe and Kuo, "Constructing Sobol sequences with better two-dimensional projections", SIAM
// J. Sci. Comput. 30 (2008), whose direction numbers the library has; McKay, Beckman and Conover,
// "A comparison of three methods for selecting values of input variables", Technometrics 21 (1979).
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kvt {

/// Numbers of one sample: each number 0 .. count - 1 once, in an order that the key decides. A
/// Feistel network over the next power of four, walked until it is back below the count.
class number_shuffle {
  public:
    /// 1 <= count <= 2^62.
    number_shuffle(std::uint64_t count, std::uint64_t key);
    std::uint64_t operator()(std::uint64_t number) const;

  private:
    std::uint64_t round_trip(std::uint64_t number) const;

    std::uint64_t count_;
    std::uint64_t key_;
    unsigned half_bits_ = 1;
};

/// A number of 0 <= u < 1 for a key and a counter.
double uniform_number(std::uint64_t key, std::uint64_t counter);
/// A key of its own for each dimension of a seed.
std::uint64_t dimension_key(std::uint64_t seed, std::size_t dimension);

/// Latin hypercube: of `count` designs, in each dimension exactly one lies in each of the intervals
/// [k / count, (k + 1) / count), somewhere in it.
std::vector<double> latin_place(std::uint64_t number, std::uint64_t count, std::size_t dimensions,
                                std::uint64_t seed);

/// The Sobol sequence with 0 as its first point, each dimension shifted by the digits of the seed
/// (seed 0: not at all). The first 2^m points leave none of the 2^m intervals of a dimension empty.
std::vector<double> sobol_place(std::uint64_t number, std::size_t dimensions, std::uint64_t seed);

}  // namespace kvt
