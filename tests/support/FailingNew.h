#ifndef TESTS_SUPPORT_FAILINGNEW_H
#define TESTS_SUPPORT_FAILINGNEW_H

// Replaces `new (std::nothrow)` of the test program, so that a test can run the system out of memory where its
// behaviour is defined. Link `failingnew`.
class FailingNew
{
public:
    // The nth such allocation from now on gives null, once; 0 lets all succeed.
    static void failNth(int nth);

    // True if the ordered failure has happened.
    static bool hasFailed();
};

#endif // TESTS_SUPPORT_FAILINGNEW_H
