#ifndef OMBREL_EXPORT_H
#define OMBREL_EXPORT_H

/// Marks what the library exports. Everything is built with hidden visibility, so a name without this mark stays inside.
#define OMBREL_API __attribute__((visibility("default")))

#endif
