#include "Commands.h"
#include "ReferenceNotes.h"
#include "ReferencePages.h"
#include "ReferenceSections.h"
#include "TextFile.h"

#include <filesystem>

namespace Ombrel::EffectsTool
{

Outcome WriteReference(const std::string& notesFolder, const std::string& outputFolder)
{
    const std::vector<ReferencePage> pages = LoadReferenceNotes(notesFolder);
    const ReferenceSections sections(pages);
    const std::filesystem::path output(outputFolder);
    std::filesystem::create_directories(output);
    for (std::size_t page = 0; page < pages.size(); ++page)
    {
        WriteTextFile(output / (pages[page].name + ".md"), PageText(pages, page, sections));
    }
    WriteTextFile(output / "README.md", IndexText(pages));
    return {"", {}, ExitCode::Fine};
}

} // namespace Ombrel::EffectsTool
