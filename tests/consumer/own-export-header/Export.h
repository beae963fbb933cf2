#ifndef STUDIO_EXPORT_H
#define STUDIO_EXPORT_H

#define STUDIO_API __attribute__((visibility("default")))

#endif
