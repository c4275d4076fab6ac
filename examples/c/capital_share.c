/* Runs the capital share on an embedded account and prints the items that tie up most capital.
 *
 *     capital-share demo.kavelin 2008
 *
 * The host's side of a report is a handful of objects: the argument with its data source, login and filter.
 * Here they are of two kinds, records (members with values) and lists (values by position or name). */
#include <kavelin.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

typedef struct field {
    const char* name;
    kavelin_value value;
} field;

typedef struct fields {
    size_t count;
    field items[8];
} fields;

/* Ends the program with what the library says of a failure. */
static void check(kavelin_status status)
{
    const kavelin_error* error = kavelin_last_error();
    if (status == KAVELIN_OK)
        return;
    fprintf(stderr, "%s: %s\n", error->source, error->text);
    kavelin_end_thread();
    exit(1);
}

static field* find(fields* self, const char* name)
{
    size_t i;
    for (i = 0; i < self->count; ++i)
        if (strcmp(self->items[i].name, name) == 0)
            return &self->items[i];
    return NULL;
}

static kavelin_status record_get(void* self, const char* member, kavelin_value* result)
{
    field* found = find(self, member);
    if (!found)
        return KAVELIN_NO_MEMBER;
    *result = found->value; /* a copy that owns nothing: */
    result->owned = 0;
    return KAVELIN_OK;
}

static kavelin_status record_put(void* self, const char* member, const kavelin_value* value)
{
    field* found = find(self, member);
    if (!found)
        return KAVELIN_NO_MEMBER;
    kavelin_clear(&found->value);
    return kavelin_copy(value, &found->value);
}

static kavelin_status list_get(void* self, const char* member, kavelin_value* result)
{
    if (strcmp(member, "Count") != 0)
        return KAVELIN_NO_MEMBER;
    *result = kavelin_of_integer((int64_t)((fields*)self)->count);
    return KAVELIN_OK;
}

/* Item(position from 1) or Item(name); empty for a name that isn't there. */
static kavelin_status list_call(void* self, const char* member, kavelin_value* arguments, size_t count,
                                kavelin_value* result)
{
    fields* list = self;
    field* found = NULL;
    if (strcmp(member, "Item") != 0 || count != 1)
        return KAVELIN_NO_MEMBER;
    if (arguments[0].kind == KAVELIN_TEXT)
        found = find(list, arguments[0].as.text.bytes);
    else if (arguments[0].as.integer < 1 || arguments[0].as.integer > (int64_t)list->count)
        return kavelin_fail("The list has no such item.");
    else
        found = &list->items[arguments[0].as.integer - 1];
    if (found) {
        *result = found->value;
        result->owned = 0;
    }
    return KAVELIN_OK;
}

static void fields_release(void* self)
{
    fields* ended = self;
    size_t i;
    for (i = 0; i < ended->count; ++i)
        kavelin_clear(&ended->items[i].value);
    free(ended);
}

static const kavelin_members record_members = {record_get, record_put, NULL, fields_release};
static const kavelin_members list_members = {list_get, NULL, list_call, fields_release};

/* A value that holds a new object and owns it. */
static kavelin_value new_object(const kavelin_members* members, const field* items, size_t count)
{
    kavelin_value value = kavelin_of_object(0);
    fields* self = calloc(1, sizeof *self);
    if (!self)
        exit(1);
    self->count = count;
    if (count > 0)
        memcpy(self->items, items, count * sizeof *items);
    check(kavelin_host_object(members, self, &value.as.object));
    value.owned = 1;
    return value;
}

#define RECORD(items) new_object(&record_members, items, sizeof(items) / sizeof((items)[0]))
#define LIST(items) new_object(&list_members, items, sizeof(items) / sizeof((items)[0]))

/* The argument of GETSQL: the ten first ranks, into `table`. Values that own an object pass it on. */
static kavelin_value new_argument(const char* connection, const char* year, const char* table)
{
    const field rank[] = {
        {"Name", kavelin_of_text("cNo")},     {"varValue", kavelin_of_text("10")},
        {"varValue2", kavelin_of_text("")},   {"RangeInput", kavelin_of_boolean(0)},
        {"IsMultSel", kavelin_of_boolean(0)}, {"LngGrouptoken", kavelin_of_integer(0)},
    };
    const field items[] = {{"cNo", RECORD(rank)}};
    const field login[] = {
        {"VosDbName", kavelin_of_text(connection)},
        {"ConnectionText", kavelin_of_text(connection)},
        {"AccountId", kavelin_of_text("001")},
        {"UserId", kavelin_of_text("demo")},
        {"Year", kavelin_of_text(year)},
        {"Password", kavelin_of_text("")},
        {"LanguageRegion", kavelin_of_text("zh-CN")},
        {"AuthService", kavelin_of_object(0)},
    };
    const field filter[] = {{"FilterList", LIST(items)}};
    const field source[] = {{"Type", kavelin_of_integer(0)}, {"sql", kavelin_of_text(table)}};
    const field argument[] = {
        {"DataSource", RECORD(source)},       {"Login", RECORD(login)},
        {"RawFilter", RECORD(filter)},        {"Args", new_object(&list_members, NULL, 0)},
        {"LangID", kavelin_of_text("zh-CN")},
    };
    return RECORD(argument);
}

/* A connection of the host's own. Open from before the report, so that the account stays loaded. */
static kavelin_object open_connection(const char* text)
{
    kavelin_object connection = 0;
    kavelin_value argument = kavelin_of_text(text);
    check(kavelin_create("Kavelin.Connection", &connection));
    check(kavelin_call(connection, "Open", &argument, 1, NULL));
    return connection;
}

static void print_cell(kavelin_object rows, const char* member, int64_t column)
{
    kavelin_value number = kavelin_of_integer(column);
    kavelin_value cell = kavelin_empty();
    kavelin_value text = kavelin_of_text("");
    check(kavelin_call(rows, member, &number, 1, &cell));
    if (cell.kind != KAVELIN_NULL)
        check(kavelin_to_text(&cell, &text));
    printf("%s%s", column > 0 ? "\t" : "", text.as.text.bytes);
    kavelin_clear(&text);
    kavelin_clear(&cell);
}

static void print_row(kavelin_object rows, const char* member)
{
    kavelin_value count = kavelin_empty();
    int64_t column;
    check(kavelin_get(rows, "FieldCount", &count));
    for (column = 0; column < count.as.integer; ++column)
        print_cell(rows, member, column);
    printf("\n");
}

static void print_rows(kavelin_object connection, const char* select)
{
    kavelin_value statement = kavelin_of_text(select);
    kavelin_value rows = kavelin_empty();
    kavelin_value end = kavelin_empty();
    check(kavelin_call(connection, "OpenRecordset", &statement, 1, &rows));
    print_row(rows.as.object, "FieldName");
    for (;;) {
        check(kavelin_get(rows.as.object, "EOF", &end));
        if (end.as.boolean)
            break;
        print_row(rows.as.object, "Field");
        check(kavelin_call(rows.as.object, "MoveNext", NULL, 0, NULL));
    }
    kavelin_clear(&rows);
}

int main(int count, char** arguments)
{
    char text[1024];
    kavelin_object connection, report = 0;
    kavelin_value argument;
    if (count != 3) {
        fprintf(stderr, "usage: %s ACCOUNT.kavelin YEAR\n", arguments[0]);
        return 2;
    }
    snprintf(text, sizeof text, "Embedded Account=%s;Locale=zh-CN", arguments[1]);
    connection = open_connection(text);

    argument = new_argument(text, arguments[2], "tempdb..CapitalShare");
    check(kavelin_create("Kavelin.clsProPortion", &report));
    check(kavelin_call(report, "GETSQL", &argument, 1, NULL));
    print_rows(connection, "select * from tempdb..CapitalShare order by cNo");

    kavelin_clear(&argument);
    check(kavelin_release(report));
    check(kavelin_release(connection));
    check(kavelin_end_thread()); /* closes what the report left open */
    return 0;
}
