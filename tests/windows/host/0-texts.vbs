Option Explicit

' Wine reads scripts in the code page 1252, whatever they are written in. So the runner moves each text that isn't
' plain ASCII into texts.txt, a Unicode file with a line for each, and writes Text(LINE) in its place.
Dim TextTable
Set TextTable = Nothing

Function Text(line)
    Dim stream
    If TextTable Is Nothing Then
        Set TextTable = CreateObject("Scripting.Dictionary")
        Set stream = CreateObject("Scripting.FileSystemObject").OpenTextFile("texts.txt", 1, False, -1)
        Do Until stream.AtEndOfStream
            TextTable.Add TextTable.Count + 1, stream.ReadLine
        Loop
        stream.Close
    End If
    Text = TextTable.Item(line)
End Function
