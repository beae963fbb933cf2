#ifndef OMBREL_TESTS_RELEASE_FROZEN_RELEASE_H
#define OMBREL_TESTS_RELEASE_FROZEN_RELEASE_H

#include "PropertyTree/PropertyTree.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Release
{

std::string ReadFile(const std::filesystem::path& file);

/// The folders below releases/, the oldest release first.
std::vector<std::filesystem::path> FrozenReleases(const std::filesystem::path& releases);

/// The source file of a packed manifest.
std::string SourceOf(const Ombrel::PropertyTree& manifest);

/// Writes a release of this build into a folder: "manifest.json" and "samples/"; and the source file.
/// @throws std::runtime_error if the folder is there
void WriteRelease(const std::string& release, const std::filesystem::path& folder, const std::filesystem::path& source);

} // namespace Release

#endif
