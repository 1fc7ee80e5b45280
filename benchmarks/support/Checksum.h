// The sum by which programs show that they read the same numbers: positions, velocities, two
// coefficients and the covariance, message by message in the order of the file.
#ifndef BENCHMARKS_CHECKSUM_H
#define BENCHMARKS_CHECKSUM_H

#include <initializer_list>
#include <span>

class Checksum {
 public:
  void add(std::span<const double> values) {
    for (const double value : values) {
      sum_ += value;
    }
  }
  void addMessage(std::span<const double, 3> eciPos, std::span<const double, 3> eciVel,
                  double bTerm, double wtdRms, std::span<const double> covariance) {
    add(eciPos);
    add(eciVel);
    sum_ += bTerm;
    sum_ += wtdRms;
    add(covariance);
  }
  double value() const { return sum_; }

 private:
  double sum_ = 0.0;
};

#endif
