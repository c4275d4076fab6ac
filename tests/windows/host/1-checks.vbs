' What a script of the tests finds, written to report.txt as it goes: the runner takes a script for passed only if
' the last line says so, since cscript ends without a word at an error that nobody catches.

Class TestReport
    Private objFiles
    Private lngChecks
    Private lngFailures
    Private strStep

    Private Sub Class_Initialize
        Set objFiles = CreateObject("Scripting.FileSystemObject")
        objFiles.CreateTextFile("report.txt", True, True).Close
        lngChecks = 0
        lngFailures = 0
    End Sub

    Public Sub Write(text)
        Dim stream
        Set stream = objFiles.OpenTextFile("report.txt", 8, True, -1)
        stream.WriteLine Shortened(text)
        stream.Close
    End Sub

    ' What the script is about to do; the last one stands in the report of a script that ends too early.
    Public Sub Step(text)
        strStep = text
        Write "step: " & text
    End Sub

    Public Sub Check(passed, what)
        lngChecks = lngChecks + 1
        If Not passed Then
            lngFailures = lngFailures + 1
            Write "FAILED " & strStep & ": " & what
        End If
    End Sub

    Public Sub Finish
        If lngFailures = 0 Then
            Write "OK " & lngChecks & " checks"
        Else
            Write lngFailures & " of " & lngChecks & " checks failed"
        End If
    End Sub

    Private Function Shortened(text)
        Shortened = Replace(text, vbCrLf, " / ")
        If Len(Shortened) > 1000 Then Shortened = Left(Shortened, 1000) & "..."
    End Function
End Class

Dim Report
Set Report = New TestReport

Sub Expect(actual, wanted, what)
    Report.Check Same(actual, wanted), what & ": wanted " & Shown(wanted) & ", given " & Shown(actual)
End Sub

Sub ExpectObject(actual, wanted, what)
    Dim isSame
    isSame = False
    If IsObject(actual) Then isSame = actual Is wanted
    Report.Check isSame, what & ": another object"
End Sub

' After a call under "On Error Resume Next": the error that it left, which is forgotten. An empty `description`
' stands for any.
Sub ExpectError(number, source, description, what)
    Dim given
    given = Err.Number & " from '" & Err.Source & "': " & Err.Description
    Report.Check Err.Number = number And Err.Source = source And _
        (description = "" Or Err.Description = description), _
        what & ": wanted " & number & " from '" & source & "': " & description & "; given " & given
    Err.Clear
End Sub

Sub ExpectNoError(what)
    Report.Check Err.Number = 0, what & ": " & Err.Number & " from '" & Err.Source & "': " & Err.Description
    Err.Clear
End Sub

' Same content and same kind of it; an integer and a double are of one kind.
Function Same(a, b)
    Same = False
    If KindOf(a) <> KindOf(b) Then Exit Function
    If IsNull(a) Or IsEmpty(a) Then
        Same = True
    Else
        Same = (a = b)
    End If
End Function

Function KindOf(value)
    KindOf = VarType(value)
    Select Case KindOf
        Case vbInteger, vbLong, vbSingle, vbDouble, vbCurrency, vbByte: KindOf = vbDouble
    End Select
End Function

' As a line of the event log shows a value.
Function Shown(value)
    If IsObject(value) Then
        If value Is Nothing Then
            Shown = "nothing"
        Else
            Shown = value.ShownName
        End If
    ElseIf IsEmpty(value) Then
        Shown = "empty"
    ElseIf IsNull(value) Then
        Shown = "null"
    ElseIf VarType(value) = vbString Then
        Shown = "'" & value & "'"
    Else
        Shown = PlainText(value)
    End If
End Function

' A value as text, without quotes.
Function PlainText(value)
    If IsNull(value) Then
        PlainText = "null"
    ElseIf VarType(value) = vbBoolean Then
        PlainText = "False"
        If value Then PlainText = "True"
    ElseIf VarType(value) = vbDate Then
        PlainText = Year(value) & "-" & Right("0" & Month(value), 2) & "-" & Right("0" & Day(value), 2)
    Else
        PlainText = CStr(value)
    End If
End Function

' Lines of text, in order, from 1.
Class TextList
    Private dicLines

    Private Sub Class_Initialize
        Set dicLines = CreateObject("Scripting.Dictionary")
    End Sub

    Public Property Get Count
        Count = dicLines.Count
    End Property

    Public Property Get Item(position)
        Item = ""
        If position >= 1 And position <= dicLines.Count Then Item = dicLines.Item(position)
    End Property

    Public Sub Add(text)
        dicLines.Add dicLines.Count + 1, text
    End Sub

    Public Sub Clear
        dicLines.RemoveAll
    End Sub

    ' The position of the first such line behind `position`, 0 for none.
    Public Function Find(text, position)
        Dim i
        Find = 0
        For i = position + 1 To dicLines.Count
            If dicLines.Item(i) = text Then
                Find = i
                Exit Function
            End If
        Next
    End Function
End Class

' The first line that differs fails the check.
Sub ExpectLines(actual, wanted, what)
    Dim i, last
    last = wanted.Count
    If actual.Count > last Then last = actual.Count
    For i = 1 To last
        If LineOrEnd(actual, i) <> LineOrEnd(wanted, i) Then
            Report.Check False, what & ", line " & i & ": wanted " & LineOrEnd(wanted, i) & ", given " & _
                LineOrEnd(actual, i)
            Exit Sub
        End If
    Next
    Report.Check True, what
End Sub

Function LineOrEnd(lines, position)
    LineOrEnd = "no more lines"
    If position <= lines.Count Then LineOrEnd = "[" & lines.Item(position) & "]"
End Function

Function LinesOf(text)
    Dim line
    Set LinesOf = New TextList
    For Each line In Split(text, vbLf)
        LinesOf.Add line
    Next
End Function
