/* The library behind a plain C interface.
 *
 * A host creates one of the public classes by its name, hands it objects of its own and calls its members by
 * name, as a host of the Windows component does:
 *
 *     kavelin_object report = 0;
 *     kavelin_value e = kavelin_of_object(arguments);
 *     if (kavelin_create("Kavelin.clsProPortion", &report) ||
 *         kavelin_call(report, "GETSQL", &e, 1, NULL))
 *         fprintf(stderr, "%s\n", kavelin_last_error()->text);
 *     kavelin_release(report);
 *     kavelin_end_thread();
 *
 * Texts    are UTF-8, values with their length in bytes, so that a NUL may stand in one; all other texts end
 *          with a NUL. Names of classes, members and provided objects are without regard to case.
 * Errors   Every function that can fail gives a status, 0 for success. kavelin_last_error tells more. A
 *          function that fails leaves what it would have given untouched, unless its comment says otherwise.
 *          No exception of the library crosses this border, and none of the host's may.
 * Threads  Each thread has a library of its own: connections, login, language, provided objects, last error.
 *          An object belongs to the thread that made it and is refused on any other. A thread that used
 *          the library calls kavelin_end_thread before it ends, the main thread before main does.
 * Objects  are handles that count their owners. A handle is never used twice, so that one that was given
 *          back is refused. A handle that a function gives belongs to the caller, who gives it back with
 *          kavelin_release (or kavelin_clear, where it stands in a value).
 */
#ifndef KAVELIN_H
#define KAVELIN_H

#include <stddef.h>
#include <stdint.h>
#include <string.h>

#if defined(__GNUC__)
#define KAVELIN_API __attribute__((visibility("default")))
#else
#define KAVELIN_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The version of the library that runs, "1.2.3". Static. */
KAVELIN_API const char* kavelin_version(void);

/* --- Errors --------------------------------------------------------------------------------------------- */

typedef enum kavelin_status {
    KAVELIN_OK = 0,

    /* A member failed, one of the library's or of the host's. */
    KAVELIN_FAILED = 1,
    KAVELIN_CONVERSION = 2, /* a value is not of the type asked for */
    KAVELIN_OVERFLOW = 3,   /* a number that the type asked for cannot hold */
    KAVELIN_DATABASE = 4,   /* a statement failed */
    KAVELIN_CONNECTION = 5, /* a connection could not be opened */
    KAVELIN_CANCELLED = 6,  /* a statement was stopped */
    KAVELIN_NO_MEMBER = 7,  /* for the host's members: the object has none of that name */

    /* The call itself was wrong; nothing was done. */
    KAVELIN_BAD_ARGUMENT = 20, /* a null pointer, a value that is none, a text that is no UTF-8 */
    KAVELIN_BAD_OBJECT = 21,   /* no handle, or one that was given back */
    KAVELIN_WRONG_THREAD = 22, /* the object belongs to another thread */
    KAVELIN_BUSY = 23,         /* not while a call is under way on this thread */

    KAVELIN_NO_MEMORY = 30,
    KAVELIN_INTERNAL = 31 /* a fault of the library */
} kavelin_status;

/* No pointer in it is null; what there is nothing to say of is "" or 0. */
typedef struct kavelin_error {
    kavelin_status status;
    int32_t native_number; /* the database's own number of the error */
    const char* text;      /* a sentence for the user */
    const char* source;    /* the class whose member failed, "Kavelin.ClsWtInfo"; else "Kavelin" */
    const char* sqlstate;  /* five characters, for a failure of a database */
    const char* statement; /* the statement that failed; passwords never stand in it */
    int32_t line;          /* the place in the statement, from 1 */
    int32_t column;
} kavelin_error;

/* The latest failure on this thread. Never null; valid until the next call that fails on this thread. A call
 * that succeeds leaves it as it is. */
KAVELIN_API const kavelin_error* kavelin_last_error(void);

/* For a member of a host's object that fails: `return kavelin_fail("No right to see the filter.");` Gives
 * KAVELIN_FAILED. The text is copied; null or a text that is no UTF-8 is an error without a text. */
KAVELIN_API kavelin_status kavelin_fail(const char* text);

/* The same with everything that is known, such as the number of a server's error. Pointers may be null. Gives
 * its status, KAVELIN_FAILED if that is KAVELIN_OK. `source` is not looked at. */
KAVELIN_API kavelin_status kavelin_fail_with(const kavelin_error* error);

/* --- Values --------------------------------------------------------------------------------------------- */

/* A handle; 0 is no object. */
typedef uint64_t kavelin_object;

typedef enum kavelin_kind {
    KAVELIN_EMPTY = 0, /* a value that nobody has set; not a null and not an empty text */
    KAVELIN_NULL = 1,
    KAVELIN_BOOLEAN = 2, /* as.boolean */
    KAVELIN_INTEGER = 3, /* as.integer */
    KAVELIN_DOUBLE = 4,  /* as.number */
    KAVELIN_DECIMAL = 5, /* as.text: "-12.50", up to 38 digits; the digits behind the point count */
    KAVELIN_DATE = 6,    /* as.date: milliseconds since 1970-01-01 00:00, without a zone; years 1 to 9999 */
    KAVELIN_TEXT = 7,    /* as.text */
    KAVELIN_OBJECT = 8   /* as.object */
} kavelin_kind;

typedef struct kavelin_text_view {
    const char* bytes; /* may be null where the length is 0; with a NUL behind if the library gives it */
    size_t length;     /* in bytes */
} kavelin_text_view;

/* Values that a host hands over are borrowed: text and object stay the host's, and need to live until the
 * call returns. Values that the library gives as a result are owned: kavelin_clear gives back what is in
 * them. A copy of the struct owns nothing more: only one of the two is cleared. */
typedef struct kavelin_value {
    int32_t kind;  /* a kavelin_kind */
    int32_t owned; /* 1 if kavelin_clear gives back what is in it. A host sets it on objects only */
    union {
        int32_t boolean; /* 0 or 1; every other number counts as 1 */
        int64_t integer;
        double number;
        int64_t date;
        kavelin_text_view text;
        kavelin_object object;
    } as;
} kavelin_value;

static inline kavelin_value kavelin_empty(void)
{
    kavelin_value value;
    memset(&value, 0, sizeof value);
    return value;
}

static inline kavelin_value kavelin_null(void)
{
    kavelin_value value = kavelin_empty();
    value.kind = KAVELIN_NULL;
    return value;
}

static inline kavelin_value kavelin_of_boolean(int content)
{
    kavelin_value value = kavelin_empty();
    value.kind = KAVELIN_BOOLEAN;
    value.as.boolean = content ? 1 : 0;
    return value;
}

static inline kavelin_value kavelin_of_integer(int64_t content)
{
    kavelin_value value = kavelin_empty();
    value.kind = KAVELIN_INTEGER;
    value.as.integer = content;
    return value;
}

static inline kavelin_value kavelin_of_double(double content)
{
    kavelin_value value = kavelin_empty();
    value.kind = KAVELIN_DOUBLE;
    value.as.number = content;
    return value;
}

static inline kavelin_value kavelin_of_date(int64_t milliseconds)
{
    kavelin_value value = kavelin_empty();
    value.kind = KAVELIN_DATE;
    value.as.date = milliseconds;
    return value;
}

static inline kavelin_value kavelin_of_bytes(const char* bytes, size_t length)
{
    kavelin_value value = kavelin_empty();
    value.kind = KAVELIN_TEXT;
    value.as.text.bytes = bytes;
    value.as.text.length = length;
    return value;
}

/* `text` ends with a NUL. */
static inline kavelin_value kavelin_of_text(const char* text)
{
    return kavelin_of_bytes(text, text ? strlen(text) : 0);
}

/* `digits` ends with a NUL. */
static inline kavelin_value kavelin_of_decimal(const char* digits)
{
    kavelin_value value = kavelin_of_text(digits);
    value.kind = KAVELIN_DECIMAL;
    return value;
}

/* 0 for no object. */
static inline kavelin_value kavelin_of_object(kavelin_object object)
{
    kavelin_value value = kavelin_empty();
    value.kind = KAVELIN_OBJECT;
    value.as.object = object;
    return value;
}

/* Gives back what an owned value holds and makes it empty. Nothing but that for a borrowed one, nothing at
 * all for null. Of a value of another thread the text is given back, the object stays. */
KAVELIN_API void kavelin_clear(kavelin_value* value);

/* Makes `copy` an owned copy, for keeping a value longer than it is lent. What `copy` held is not looked at.
 */
KAVELIN_API kavelin_status kavelin_copy(const kavelin_value* value, kavelin_value* copy);

/* The value as text, by the library's rules: an empty one gives "", a date "2008-07-31". The copy is an owned
 * text. KAVELIN_CONVERSION for a null or an object. */
KAVELIN_API kavelin_status kavelin_to_text(const kavelin_value* value, kavelin_value* text);

/* --- Objects -------------------------------------------------------------------------------------------- */

/* A new object of a public class, "Kavelin.ClsWtInfo", or a connection of this library's own, see
 * "Kavelin.Connection" in docs/hosting.md. */
KAVELIN_API kavelin_status kavelin_create(const char* name, kavelin_object* object);

/* Reads a property. `result` becomes an owned value. */
KAVELIN_API kavelin_status kavelin_get(kavelin_object object, const char* member, kavelin_value* result);

/* Writes a property. */
KAVELIN_API kavelin_status kavelin_put(kavelin_object object, const char* member, const kavelin_value* value);

/* Calls a method, or a property that has an index: with the index it is read, with the index and a value it
 * is written. An argument that the member exchanged (`Cancel` of a dialog's callback) is replaced by an owned
 * value, also where the call fails; what it was before is cleared if it was owned. `arguments` may be null if
 * `count` is 0, `result` if it is not wanted; it becomes an owned value. */
KAVELIN_API kavelin_status kavelin_call(kavelin_object object, const char* member, kavelin_value* arguments,
                                        size_t count, kavelin_value* result);

/* One owner more, one owner less; the last one ends the object. An object may be given back while one of its
 * members runs: it ends when the member has returned. kavelin_release of 0 does nothing. */
KAVELIN_API kavelin_status kavelin_retain(kavelin_object object);
KAVELIN_API kavelin_status kavelin_release(kavelin_object object);

/* --- The host's objects --------------------------------------------------------------------------------- */

/* What an object of the host does, by the names of its members. They are called on the thread that made the
 * object, and never after `release`. Any of them may be null: there is no such member then.
 *
 * `member` is spelled as in docs/hosting.md; the empty name is the default member. `result` is empty at
 * first. Text and object that a member puts there stay the host's: the library copies the text, and makes
 * itself an owner of the object, when the member has returned. An owned value (of kavelin_copy, or out of
 * another call) goes over to the library. Arguments and values are borrowed: a member that keeps one copies
 * it. A member that fails gives a status; kavelin_fail says why. */
typedef struct kavelin_members {
    kavelin_status (*get)(void* self, const char* member, kavelin_value* result);
    kavelin_status (*put)(void* self, const char* member, const kavelin_value* value);
    /* May put other values in the place of arguments, as in `result`, where the member is told to. */
    kavelin_status (*call)(void* self, const char* member, kavelin_value* arguments, size_t count,
                           kavelin_value* result);
    void (*release)(void* self); /* once, when the object has no owner left */
} kavelin_members;

/* Makes an object of the host's. `members` must live as long as the object; each member gets `self`. */
KAVELIN_API kavelin_status kavelin_host_object(const kavelin_members* members, void* self,
                                               kavelin_object* object);

/* The `self` of an object that was made with these members. KAVELIN_BAD_ARGUMENT for any other object. */
KAVELIN_API kavelin_status kavelin_self(kavelin_object object, const kavelin_members* members, void** self);

/* Makes an object of the name. `*object` is 0 at first; the handle that is put there goes over to the
 * library. */
typedef kavelin_status (*kavelin_maker)(void* context, const char* name, kavelin_object* object);

/* From now on objects of that name ("ADODB.Connection", "Lumenet.ResLog", a viewer of the suite) are made by
 * the host, on this thread. Another maker of the same name is replaced. docs/hosting.md tells the names, and
 * what the library does where the host provides nothing. */
KAVELIN_API kavelin_status kavelin_provide(const char* name, kavelin_maker maker, void* context);

/* Takes it back; no error where there is none. Objects made before stay. */
KAVELIN_API kavelin_status kavelin_withdraw(const char* name);

/* Icons of a message. */
enum { KAVELIN_WARNING = 48, KAVELIN_INFORMATION = 64 };

/* Who takes, on this thread, what the library shows to the user where the host provides no "Lumenet.ResLog".
 * Null: nobody, as at first. Texts are lent for the time of the call. */
typedef void (*kavelin_message)(void* context, const char* text, int32_t icon);
KAVELIN_API kavelin_status kavelin_on_message(kavelin_message taker, void* context);

/* Gives back everything that this thread has: connections that reports left open, provided objects, and all
 * objects, whose handles are refused from then on. The thread may begin anew afterwards. KAVELIN_BUSY from
 * within a member of the host. */
KAVELIN_API kavelin_status kavelin_end_thread(void);

#ifdef __cplusplus
}
#endif

#endif
