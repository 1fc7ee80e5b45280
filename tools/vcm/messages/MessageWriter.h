// Stored messages as text, in any of the forms that the program writes.
#ifndef VCM_TOOLS_MESSAGEWRITER_H
#define VCM_TOOLS_MESSAGEWRITER_H

#include <memory>

#include "VCM/VcmTypes/VcmRecord.h"
#include "terminal/TextOutput.h"

namespace vcmtool {

// begin(), then messages one by one, then end(). Messages may be written without begin() and end():
// then they come without what surrounds them in a file.
class MessageWriter {
 public:
  explicit MessageWriter(TextOutput& output) : output_(output) {}
  virtual ~MessageWriter() = default;
  MessageWriter(const MessageWriter&) = delete;
  MessageWriter& operator=(const MessageWriter&) = delete;

  virtual void begin() {}
  virtual void message(const vcm::VcmRecord& record) = 0;
  virtual void end() {}

  // False once a value of some message did not fit into its field. The user has been told.
  bool allFit() const { return allFit_; }

 protected:
  TextOutput& output() { return output_; }
  void misfit() { allFit_ = false; }

 private:
  TextOutput& output_;
  bool allFit_ = true;
};

using MakeWriter = std::unique_ptr<MessageWriter>(TextOutput& output);
MakeWriter makeMultiLineWriter;
MakeWriter makeOneLineWriter;
MakeWriter makeJsonWriter;
MakeWriter makeCsvWriter;
// For people: a line for each field.
MakeWriter makeFieldWriter;

// A message, written and read again.
using ReadBack = vcm::VcmRecord(const vcm::VcmRecord& record);
ReadBack readMultiLineBack;
ReadBack readOneLineBack;

}  // namespace vcmtool

#endif
