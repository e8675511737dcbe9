#include "Support/ModelFixture.h"

#include "Support/EventLoop.h"

const TargetState* ModelFixture::state(const std::string& id) const
{
    for (const auto& candidate : model->targets()) {
        if (candidate.id() == id)
            return &candidate;
    }
    return nullptr;
}

bool ModelFixture::waitUntil(const std::function<bool()>& done, int milliseconds)
{
    return EventLoop::waitUntil(done, milliseconds);
}
