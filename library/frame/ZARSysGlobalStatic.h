#ifndef ZARSYSGLOBALSTATIC_H
#define ZARSYSGLOBALSTATIC_H

#include <QCoreApplication>
#include <QObject>
#include <QThread>

#include <atomic>

// Moves object to the thread of the application, when there is an application: process-wide
// objects whose timers, signals or application-wide changes belong to that thread's event loop,
// whichever thread asked for them first.
inline void ZARSysMoveToApplicationThread(QObject *object)
{
    if (const QCoreApplication *app = QCoreApplication::instance())
        object->moveToThread(app->thread());
}

// The one process-wide object of type T: made on first use by create, thread-safely, and, when
// a destroy function is given, destroyed by it with the library's other static objects when the
// library is unloaded; without one it lives as long as the process. Get() returns null once the
// object is gone, so that code running during shutdown (the destructor of another static object,
// say) can tell instead of reaching a destroyed object. Both functions are written inside the
// class's own accessor, which may call its private constructor and destructor.
template<typename T>
class ZARSysGlobalStatic
{
public:
    template<typename Factory>
    static T *Get(Factory create, void (*destroy)(T *) = nullptr)
    {
        if (destroyed.load(std::memory_order_acquire))
            return nullptr;
        static Holder holder {create(), destroy};
        return holder.object;
    }

private:
    struct Holder
    {
        T *object;
        void (*destroy)(T *);

        ~Holder()
        {
            if (!destroy)
                return;
            // Marked only afterwards: what the destructor does (a settings group unregistering
            // itself, say) may still reach the object.
            destroy(object);
            destroyed.store(true, std::memory_order_release);
        }
    };

    static inline std::atomic<bool> destroyed {false};
};

#endif // ZARSYSGLOBALSTATIC_H
