' Reports that are run again and again, and each time something else fails.

Const ErrorInCommand = &H80040E14
Const Failed = &H80004005

' The file that tells what the runs are answered; "" for what little every report needs.
Dim ScenarioOfRuns
ScenarioOfRuns = ""

Dim Library

Sub TellOfTheCapitalShare
    Host.Scenario.Tell "sql|tempdb..share"
    Host.Scenario.Tell "rows|whole|select sum(资金占用额) from ia_ProPortionRpt_temp1"
    Host.Scenario.Tell "columns|"
    Host.Scenario.Tell "row|#int 100"
    Host.Scenario.Tell "rows|whole|select (资金占用额) from ia_ProPortionRpt_temp"
    Host.Scenario.Tell "columns|资金占用额"
    Host.Scenario.Tell "row|#int 50"
    Host.Scenario.Tell "row|#int 50"
End Sub

' Makes a new host for a report, and the report.
Sub NewRun(name)
    Host.Restart
    Host.Scenario.Tell "sql|tempdb..result"
    If ScenarioOfRuns <> "" Then Host.Scenario.Read ScenarioOfRuns
    If ScenarioOfRuns = "" And name = "clsProPortion" Then TellOfTheCapitalShare
    Set Library = CreateObject("Kavelin." & name)
End Sub

Sub Run
    Dim e
    Set e = New ReportArguments
    Library.GETSQL e
End Sub

' The number of the error of a run, 0 for none.
Function Outcome
    On Error Resume Next
    Run
    Outcome = Err.Number
End Function

Sub ExpectFailureAtEveryEventOfTheFrame(name, lastOfFrame)
    Dim last, i, outcomeOfAll
    Report.Step "the frame of " & name
    NewRun name
    outcomeOfAll = Outcome  ' without a filter some reports fail behind the frame
    last = Host.Events.Lines.Find(lastOfFrame, 0)
    Report.Check last > 0, name & " never comes to " & lastOfFrame
    For i = 1 To last
        NewRun name
        Host.Events.FailAt i
        Report.Check Outcome <> 0, name & ": no error at event " & i
        Expect Host.Events.Lines.Count, i, name & ": events before the end at " & i
    Next
End Sub

' Each statement of a run fails once: those before number `quietFrom` with an error of the call, the others without;
' 0: no other. What drops a work table never matters: the run goes on.
Sub ExpectFailuresOfStatements(name, quietFrom)
    Dim all, count, k, isQuiet
    Report.Step "statements of " & name
    NewRun name
    Run
    Set all = Host.Statements
    count = Host.Sent.Count
    Report.Check count > 0, name & " sends nothing"
    For k = 1 To count
        isQuiet = quietFrom > 0 And k >= quietFrom
        NewRun name
        Host.FailAtStatement = k
        If Left(all.Item(k), 11) = "drop table " Then
            Expect Outcome, 0, name & ": the error of the clean-up " & k
            Expect Host.Sent.Count, count, name & ": statements with the failing clean-up " & k
        ElseIf isQuiet Then
            Expect Outcome, 0, name & ": the error of statement " & k
        Else
            Expect Outcome, ErrorInCommand, name & ": the error of statement " & k
            Expect Host.Sent.Count, k, name & ": statements until the failure"
            Expect Host.Events.Lines.Find("#1.Close", 0), 0, name & ": a connection closed behind statement " & k
        End If
    Next
End Sub
