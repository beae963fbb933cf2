#ifndef OMBREL_PROC_EARLY_INIT_H
#define OMBREL_PROC_EARLY_INIT_H

#include "OmbrelExport.h"

/// Marks a public constant that is constructed before every ordinary initialiser of the program and destroyed after every
/// ordinary destructor, also where a static library is linked. The library itself reads none of these constants: its own
/// initialisation must not depend on theirs.
#ifdef __GNUC__
#define OMBREL_EARLY_INIT __attribute__((init_priority(1000)))
#else
#define OMBREL_EARLY_INIT
#endif

#endif
