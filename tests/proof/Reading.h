// What a call that asks must say when certain bytes come as the answer: told from the type of what it asks for, not
// from the call. Two places were gone by, and neither's code is used: how VISA converts, and what the driver's words
// are.

#ifndef KVTD_TESTS_PROOF_READING_H
#define KVTD_TESTS_PROOF_READING_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FaultBench.h"

namespace kvtd::test {

enum class Reading {
  kReal,
  kInteger,
  // A number that is not given out.
  kNumber,
  // Three integers with commas between.
  kNumbers,
  kBoolean,
  // One of a few, of which the ordinary answer is one.
  kWord,
  // Whatever stands in the line.
  kText,
  // In a way of its own.
  kOther,
};
Reading ReadingOf(const Subject& subject);

// How the bytes end. Behind an open end nothing tells that nothing more will come.
enum class End { kOfMessage, kOpen };
inline End EndOn(LinkKind link) { return link == LinkKind::Socket ? End::kOpen : End::kOfMessage; }

// That the outcome is right when each question is answered with these bytes: the status, and what is given out.
testing::AssertionResult IsRight(const Subject& subject, const std::string& bytes, End end, const Outcome& outcome);

// What an integer is read as, or the status that says why it is none.
struct Integer {
  ViStatus status;
  ViInt32 value;
};
Integer ReadInteger(const std::string& bytes, End end);

// Lines that answer no question.
const std::vector<std::string>& FalseAnswers();

}  // namespace kvtd::test

#endif
