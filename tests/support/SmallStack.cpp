#include "support/SmallStack.h"

#include <pthread.h>

#include <exception>
#include <stdexcept>

namespace Support
{

void RunOnStack(std::size_t bytes, const std::function<void()>& work)
{
    struct Call
    {
        const std::function<void()>& work;
        std::exception_ptr failure;
    };
    Call call{work, nullptr};
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_t thread;
    const auto run = [](void* argument) -> void*
    {
        Call& thisCall = *static_cast<Call*>(argument);
        try
        {
            thisCall.work();
        }
        catch (...)
        {
            thisCall.failure = std::current_exception();
        }
        return nullptr;
    };
    const bool isStarted =
        pthread_attr_setstacksize(&attributes, bytes) == 0 && pthread_create(&thread, &attributes, run, &call) == 0;
    pthread_attr_destroy(&attributes);
    if (!isStarted)
    {
        throw std::runtime_error("no thread with so small a stack");
    }
    pthread_join(thread, nullptr);
    if (call.failure)
    {
        std::rethrow_exception(call.failure);
    }
}

} // namespace Support
