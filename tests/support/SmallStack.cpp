#include "support/SmallStack.h"

#include <pthread.h>

#include <stdexcept>

namespace Support
{

void RunOnStack(std::size_t bytes, const std::function<void()>& work)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_t thread;
    const auto run = [](void* argument) -> void*
    {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    const bool isStarted = pthread_attr_setstacksize(&attributes, bytes) == 0 &&
                           pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&work)) == 0;
    pthread_attr_destroy(&attributes);
    if (!isStarted)
    {
        throw std::runtime_error("no thread with so small a stack");
    }
    pthread_join(thread, nullptr);
}

} // namespace Support
