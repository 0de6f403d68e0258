// Tables of callbacks, ordered by key.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "ui/types.h"

namespace UI {

using MessageHandler = std::function<void(WParam, LParam)>;
using ResultHandler = std::function<MessageResult(WParam, LParam)>;
using NotificationHandler = std::function<void()>;

template <class Handler>
class HandlerTable {
public:
    // Inserts, or replaces what stands under `key`.
    void Set(int key, Handler handler) { handlers[key] = std::make_shared<const Handler>(std::move(handler)); }

    // The caller shares the handler, so that one that replaces itself outlives its own run. Null when there is none.
    std::shared_ptr<const Handler> Find(int key) const {
        auto found = handlers.find(key);
        return found == handlers.end() ? nullptr : found->second;
    }

private:
    std::map<int, std::shared_ptr<const Handler>> handlers;
};

// What windows and controls do with a message: the message handler runs and lets it go on; a result handler ends it.
// True, with `result` set, when it was ended.
inline bool DispatchMessageTo(const HandlerTable<MessageHandler>& messages, const HandlerTable<ResultHandler>& results,
                              int message, WParam wParam, LParam lParam, MessageResult& result) {
    if (auto handler = messages.Find(message)) (*handler)(wParam, lParam);
    auto handler = results.Find(message);
    if (handler) result = (*handler)(wParam, lParam);
    return handler != nullptr;
}

}  // namespace UI
