' Plays a scenario against the library and compares what the host saw with what the scenario tells.

' The statements of a log: "-- NUMBER #CONNECTION" stands above each, and its lines end in LF.
Class StatementLog
    Private dicConnections
    Private dicStatements

    Private Sub Class_Initialize
        Set dicConnections = CreateObject("Scripting.Dictionary")
        Set dicStatements = CreateObject("Scripting.Dictionary")
    End Sub

    Public Property Get Count
        Count = dicStatements.Count
    End Property

    Public Property Get Connection(number)
        Connection = dicConnections.Item(number)
    End Property

    Public Property Get Statement(number)
        Statement = dicStatements.Item(number)
    End Property

    Public Sub Read(path)
        Dim stream, line, number, head, isFirst
        number = 0
        Set stream = CreateObject("Scripting.FileSystemObject").OpenTextFile(path, 1, False, -1)
        Do Until stream.AtEndOfStream
            line = stream.ReadLine
            head = "-- " & (number + 1) & " #"
            If Left(line, Len(head)) = head Then
                number = number + 1
                dicConnections.Add number, CLng(Mid(line, Len(head) + 1))
                dicStatements.Add number, ""
                isFirst = True
            Else
                If Not isFirst Then dicStatements.Item(number) = dicStatements.Item(number) & vbCrLf
                dicStatements.Item(number) = dicStatements.Item(number) & line
                isFirst = False
            End If
        Loop
        stream.Close
    End Sub
End Class

' A statement with the scenario's GUID in the place of those that the library made.
Function WithScenarioGuid(ByVal sent, wanted)
    Dim position, made
    If Host.Scenario.Guid <> "" Then
        position = InStr(wanted, Host.Scenario.Guid)
        Do While position > 0
            made = Mid(sent, position, Len(Host.Scenario.Guid))
            Report.Check IsGuidText(made), "a GUID in a statement: " & made
            sent = Left(sent, position - 1) & Host.Scenario.Guid & Mid(sent, position + Len(Host.Scenario.Guid))
            position = InStr(position + 1, wanted, Host.Scenario.Guid)
        Loop
    End If
    WithScenarioGuid = sent
End Function

' 32 hexadecimal digits in capitals.
Function IsGuidText(text)
    Dim i
    IsGuidText = (Len(text) = 32)
    For i = 1 To Len(text)
        If InStr("0123456789ABCDEF", Mid(text, i, 1)) = 0 Then IsGuidText = False
    Next
End Function

Sub ExpectStatements(wanted)
    Expect Host.Sent.Count, wanted.Count, "number of statements"
    ExpectFirstStatements wanted
End Sub

' The log may go on.
Sub ExpectFirstStatements(wanted)
    Dim i
    For i = 1 To wanted.Count
        If i > Host.Sent.Count Then Exit Sub
        Expect Host.Sent.Item(i), wanted.Connection(i), "connection of statement " & i
        ExpectLines LinesOf(WithScenarioGuid(Host.Statements.Item(i), wanted.Statement(i))), _
            LinesOf(wanted.Statement(i)), "statement " & i
    Next
End Sub

' What a scenario tells of platform services is Windows' business here, not the host's. A host can't be asked
' early-bound, so "late " is nothing to it.
Function HostEvents(events)
    Dim i, line
    Set HostEvents = New TextList
    For i = 1 To events.Count
        line = events.Item(i)
        If Left(line, 5) = "late " Then line = Mid(line, 6)
        If line <> "CreateGuid" And line <> "Beep" And InStr(line, "Xml") = 0 Then HostEvents.Add line
    Next
End Function

' What the entries for older hosts read of their argument, in order; "" for a class that has none.
Function ReadsOfOlderEntry(className)
    Select Case className
        Case "ClsWtInfo", "clsStaCostacc", "clsFCSumInfo"
            ReadsOfOlderEntry = "e.RawFilter|e.Login|e.DataSource|DataSource.Typecode = 2|DataSource.sql|e.LangID"
        Case "clsLastRep", "clsCinTurnRep", "ClsABC"
            ReadsOfOlderEntry = "e.RawFilter|e.Login|e.ObjreportManager|e.DataSource|DataSource.Typecode = 2|" & _
                "e.LangID|DataSource.sql"
        Case Else
            ReadsOfOlderEntry = ""
    End Select
End Function

Function ReadsOfArgument(events)
    Dim i, line
    Set ReadsOfArgument = New TextList
    For i = 1 To events.Count
        line = events.Item(i)
        If Left(line, 2) = "e." Or Left(line, 11) = "DataSource." Then ReadsOfArgument.Add line
    Next
End Function

Sub CallEntry(library, isOlder, e)
    On Error Resume Next
    If isOlder Then
        library.GetSqlForOld e
    Else
        library.GETSQL e
    End If
    ExpectNoError "the report fails"
End Sub

' Plays scenario.txt.
Sub Replay
    Report.Step "reading the scenario"
    Host.Scenario.Read "scenario.txt"
    If Host.Scenario.ClassName = "clsFilterControl" Then
        ReplayDialog
    Else
        ReplayReport
    End If
End Sub

' Opens a dialog. The log holds the statements of its lookups too, which the library only writes.
Sub ReplayDialog
    Dim control, conditions, wanted
    Set wanted = New StatementLog
    wanted.Read "statements.txt"
    ProvideAll
    LeaveLanguageBehind
    Set control = CreateObject("Kavelin.clsFilterControl")
    Set conditions = New ScriptedFilter
    conditions.IdentityName = Host.Scenario.Dialog
    Report.Step "opening"
    On Error Resume Next
    control.CallBack_FilterInit conditions
    ExpectNoError "the dialog doesn't open"
    On Error GoTo 0
    ExpectFirstStatements wanted
    ExpectLines Host.Events.Lines, HostEvents(Host.Scenario.Expected), "events"
End Sub

' Some dialogs take the language that an earlier report of the thread has read. This one makes no resource object.
Sub LeaveLanguageBehind
    Dim earlier, e
    Set earlier = CreateObject("Kavelin.clsFCSumInfo")
    Set e = New ReportArguments
    earlier.GETSQL e
    Host.Restart
    Host.Scenario.Read "scenario.txt"
End Sub

' Through GETSQL of the class, and then through GetSqlForOld where the class has it.
Sub ReplayReport
    Dim library, e, wanted, older
    Set wanted = New StatementLog
    wanted.Read "statements.txt"
    ProvideAll
    Report.Step "creating Kavelin." & Host.Scenario.ClassName
    Set library = CreateObject("Kavelin." & Host.Scenario.ClassName)
    Set e = New ReportArguments
    Report.Step "GETSQL"
    CallEntry library, False, e
    ExpectStatements wanted
    ExpectLines Host.Events.Lines, HostEvents(Host.Scenario.Expected), "events"

    older = ReadsOfOlderEntry(Host.Scenario.ClassName)
    If older = "" Then Exit Sub
    Report.Step "GetSqlForOld"
    Host.Restart
    Host.Scenario.Read "scenario.txt"
    Set library = CreateObject("Kavelin." & Host.Scenario.ClassName)
    Set e = New ReportArguments
    CallEntry library, True, e
    ExpectStatements wanted
    ExpectLines ReadsOfArgument(Host.Events.Lines), LinesOf(Replace(older, "|", vbLf)), "reads of the argument"
End Sub
