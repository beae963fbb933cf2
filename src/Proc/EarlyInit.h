#ifndef OMBREL_PROC_EARLY_INIT_H
#define OMBREL_PROC_EARLY_INIT_H

#include "OmbrelExport.h"

/// Marks a public constant that is constructed before every ordinary initialiser of the program and destroyed after every
/// ordinary destructor, also where a static library is linked. The library itself reads none of these constants: its own
/// initialisation must not depend on theirs.
#if defined(__GNUC__) || defined(__clang__)
#define OMBREL_EARLY_INIT __attribute__((init_priority(1000)))
#else
#define OMBREL_EARLY_INIT // a DLL constructs its constants before the program's; a static library has no order there
#endif

#endif
