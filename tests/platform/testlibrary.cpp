// A shared library with one exported function, built several times under different names. The
// function returns an address inside the library: taking the address of an imported function
// would give the import thunk in the caller's image instead.
#ifdef _WIN32
#define TEST_EXPORT __declspec(dllexport)
#else
#define TEST_EXPORT __attribute__((visibility("default")))
#endif

#define TEST_CONCAT2(a, b) a##b
#define TEST_CONCAT(a, b) TEST_CONCAT2(a, b)

static int marker;

extern "C" TEST_EXPORT const void *TEST_CONCAT(zarsys_test_, ZARSYS_TEST_LIBRARY)()
{
    return &marker;
}
