#ifndef OMBREL_PROC_IMPL_NAMES_H
#define OMBREL_PROC_IMPL_NAMES_H

#include "OmbrelExport.h"

#include <string>

namespace Ombrel::Proc
{

/// Names of the implementations that can run an effect. They stand in stored trees and never change.
struct OMBREL_API ImplNames
{
    /// As literals for those who run before this library's own initialisers.
    static constexpr const char* DEFAULT_NAME = "default";
    static constexpr const char* FFMPEG_NAME = "ffmpeg";

    /// The same as texts.
    static const std::string DEFAULT;
    static const std::string FFMPEG;
};

} // namespace Ombrel::Proc

#endif
