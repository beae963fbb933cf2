#ifndef OMBREL_TESTS_HOSTILE_BORDERS_MODULE_H
#define OMBREL_TESTS_HOSTILE_BORDERS_MODULE_H

#include <dlfcn.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace Borders
{

/// A loaded module that nobody else can look into.
class Module
{
public:
    explicit Module(const char* path) : m_handle(dlopen(path, RTLD_NOW | RTLD_LOCAL))
    {
        if (!m_handle)
        {
            throw std::runtime_error(dlerror());
        }
    }

    template <class Function> Function* Get(const char* name) const
    {
        void* const symbol = dlsym(m_handle.get(), name);
        if (!symbol)
        {
            throw std::runtime_error(std::string("no ") + name);
        }
        return reinterpret_cast<Function*>(symbol);
    }

    /// Whether the file is part of this process.
    static bool IsLoaded(const char* path)
    {
        void* const handle = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
        return handle && dlclose(handle) == 0;
    }

private:
    struct Close
    {
        void operator()(void* handle) const { dlclose(handle); }
    };

    std::unique_ptr<void, Close> m_handle;
};

} // namespace Borders

#endif
