// Which characters make up T-SQL's names and the blanks between them.
#pragma once

namespace kavelin::embedded {

// A blank, a tab or the end of a line.
bool IsBlank(char32_t character);

bool IsDigit(char32_t character);  // 0 to 9

// A name may begin with a letter of any language, `_` or `#`.
bool BeginsName(char32_t character);

// And goes on with those, with digits, `$` and `@`.
bool ContinuesName(char32_t character);

}  // namespace kavelin::embedded
