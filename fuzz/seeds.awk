# The statements of the project's own tests, one a file, for a fuzzer to begin with:
#   awk -v folder=seeds -f fuzz/seeds.awk FILES
#
# A statement log has `-- NUMBER #CONNECTION` before each statement, a *.test file an SQL block behind its
# head, identity.sql and the account's scripts one statement a line or a few lines.

function keep() {
    if (text != "") {
        name = sprintf("%s/%05d", folder, ++count)
        printf "%s", text > name
        close(name)
    }
    text = ""
}
function add(line) { text = text (text == "" ? "" : "\r\n") line }

FNR == 1 { keep(); inBlock = 0; isTest = FILENAME ~ /\.test$/; isLog = FILENAME ~ /statements\// }

isLog && /^-- [0-9]+ #/ { keep(); next }
isLog { add($0); next }

isTest && /^$/ { keep(); inBlock = 0; next }
isTest && !inBlock { inBlock = /^(statement|query|names)/ ? 1 : 0; next }
isTest && /^----$/ { inBlock = 2; next }
isTest { if (inBlock == 1) add($0); next }

/^(--|$)/ { next }
{ add($0); if (FILENAME ~ /identity\.sql$/ || /;$/) keep() }

END { keep() }
