// A finished catalogue on its way to the disk.
#pragma once

#include <string>

#include "core/platform/result.h"
#include "import/catalogue_builder.h"

namespace zarvo {

// Writes the data file to a host path, or to standard output for "-". A plain file gets the new
// content whole or keeps the old one, as ReplacePlainFile tells; the temporary file is the path
// with
// ".tmp" behind it.
Status WriteDataFile(const CatalogueBuilder& catalogue, const std::string& path);

// What a person wants to know at the end, in lines.
std::string SummaryText(const ImportSummary& summary);

}  // namespace zarvo
