// Memory that runs out for a scope: what this thread asks for with std::nothrow is refused. All
// other allocations go on.
#ifndef SUPPORT_ALLOCATIONFAILURE_H
#define SUPPORT_ALLOCATIONFAILURE_H

class AllocationFailure {
 public:
  enum Kind { ofObjects, ofArrays };

  // The first `granted` requests of that kind still get their memory.
  explicit AllocationFailure(Kind kind, int granted = 0);
  ~AllocationFailure();
  AllocationFailure(const AllocationFailure&) = delete;
  AllocationFailure& operator=(const AllocationFailure&) = delete;

 private:
  Kind kind_;
};

#endif
