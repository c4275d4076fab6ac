/* The interface as a C program sees it: the header compiles as C, and a host of plain structs and functions
 * can be written with it. */
#include <kavelin.h>

#include <stdio.h>

static int failures = 0;

#define EXPECT(fact)                                                      \
    do {                                                                  \
        if (!(fact)) {                                                    \
            fprintf(stderr, "plain.c:%d: not so: %s\n", __LINE__, #fact); \
            ++failures;                                                   \
        }                                                                 \
    } while (0)

typedef struct source {
    int64_t type;
    int released;
} source;

static kavelin_status get(void* self, const char* member, kavelin_value* result)
{
    (void)self;
    if (strcmp(member, "sql") != 0)
        return KAVELIN_NO_MEMBER;
    *result = kavelin_of_text("tempdb..result");
    return KAVELIN_OK;
}

static kavelin_status put(void* self, const char* member, const kavelin_value* value)
{
    if (strcmp(member, "Type") != 0)
        return KAVELIN_NO_MEMBER;
    if (value->kind != KAVELIN_INTEGER)
        return kavelin_fail("The type is a number.");
    ((source*)self)->type = value->as.integer;
    return KAVELIN_OK;
}

static kavelin_status call(void* self, const char* member, kavelin_value* arguments, size_t count,
                           kavelin_value* result)
{
    (void)self;
    (void)member;
    (void)result;
    if (count == 1)
        arguments[0] = kavelin_of_text("exchanged");
    return KAVELIN_OK;
}

static void release(void* self)
{
    ((source*)self)->released = 1;
}

static const kavelin_members members = {get, put, call, release};

int main(void)
{
    source self = {0, 0};
    void* found = NULL;
    kavelin_object object = 0;
    kavelin_value value = kavelin_of_integer(2);
    kavelin_value result = kavelin_empty();

    EXPECT(strcmp(kavelin_version(), "") != 0);
    EXPECT(kavelin_last_error()->status == KAVELIN_OK);
    EXPECT(kavelin_host_object(&members, &self, &object) == KAVELIN_OK);
    EXPECT(kavelin_self(object, &members, &found) == KAVELIN_OK && found == &self);

    EXPECT(kavelin_put(object, "Type", &value) == KAVELIN_OK && self.type == 2);
    value = kavelin_null();
    EXPECT(kavelin_put(object, "Type", &value) == KAVELIN_FAILED);
    EXPECT(strcmp(kavelin_last_error()->text, "The type is a number.") == 0);

    EXPECT(kavelin_get(object, "sql", &result) == KAVELIN_OK);
    EXPECT(result.kind == KAVELIN_TEXT && strcmp(result.as.text.bytes, "tempdb..result") == 0);
    kavelin_clear(&result);

    value = kavelin_of_boolean(1);
    EXPECT(kavelin_call(object, "Ask", &value, 1, NULL) == KAVELIN_OK);
    EXPECT(value.kind == KAVELIN_TEXT && value.as.text.length == strlen("exchanged"));
    kavelin_clear(&value);

    EXPECT(kavelin_release(object) == KAVELIN_OK && self.released == 1);
    EXPECT(kavelin_create("Kavelin.clsNothing", &object) == KAVELIN_FAILED);
    EXPECT(kavelin_end_thread() == KAVELIN_OK);
    return failures == 0 ? 0 : 1;
}
