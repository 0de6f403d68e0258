#pragma once

#include <string>
#include <vector>

#include "tests/lint/source_file.h"

namespace Lint {

// A broken rule: "path:line: what".
using Findings = std::vector<std::string>;

// Bits are taken apart in model/core alone. The rules rest on the format of the code, which is a rule of its own: a
// binary operator stands between blanks, which brackets of templates, references and pointers never do.
void FindShifts(const SourceFile& file, Findings& findings);
void FindMasks(const SourceFile& file, Findings& findings);

// What includes what is no header of the standard library or of this project.
void FindForeignHeaders(const SourceFile& file, Findings& findings);

// Arrows point down only: each room includes itself and the rooms below it. The room of a backend is included by
// itself, by tests and where a program starts.
void FindUpwardIncludes(const SourceFile& file, Findings& findings);

// Timing is integers and Decimal.
void FindFloatingPoint(const SourceFile& file, Findings& findings);

// The model has neither exceptions nor input and output.
void FindFailuresInModel(const SourceFile& file, Findings& findings);

void FindLongFiles(const SourceFile& file, Findings& findings);
void FindUnfinishedWork(const SourceFile& file, Findings& findings);
void FindUnguardedHeaders(const SourceFile& file, Findings& findings);

}  // namespace Lint
