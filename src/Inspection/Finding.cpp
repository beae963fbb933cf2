#include "Inspection/Finding.h"

#include <array>
#include <cstddef>

namespace Ombrel::Inspection
{
namespace
{

// In the order of the codes.
constexpr std::array<std::string_view, 26> TEXTS{
    "no-name",         "unknown-effect",    "wrong-kind",      "bad-colour",     "number-too-large",
    "too-deep",        "not-an-effect",     "not-registered",  "refused",        "unknown-name",
    "number-for-name", "cut-integer",       "truncated-float", "narrowed-float", "colour-not-canonical",
    "ignored-value",   "duplicate-element", "unknown-key",     "lost-by-copy",   "changes-on-write",
    "other-default",   "default-written",   "null-effect",     "ragged-rows",    "not-a-number",
    "no-schema",
};

static_assert(TEXTS.size() == static_cast<std::size_t>(FindingCode::NoSchema) + 1);

} // namespace

std::string_view TextOf(FindingCode code) noexcept
{
    return TEXTS[static_cast<std::size_t>(code)];
}

Severity SeverityOf(FindingCode code) noexcept
{
    return code <= FindingCode::Refused        ? Severity::Error
           : code <= FindingCode::OtherDefault ? Severity::Warning
                                               : Severity::Note;
}

std::string_view TextOf(Severity severity) noexcept
{
    return severity == Severity::Error ? "error" : severity == Severity::Warning ? "warning" : "note";
}

} // namespace Ombrel::Inspection
