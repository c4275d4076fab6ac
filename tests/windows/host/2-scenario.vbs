' What the host answers, and what happens to its objects. A scenario's file tells the answers; the script may change
' them before it calls the library. The files are written by the tests of the reports (tests/support/Scenario.h).

' The number of the errors that the host raises when a test asks for them.
Dim PlannedError
PlannedError = vbObjectError + 513

' Every read, write and call, in order.
Class EventLog
    Private objLines
    Private lngFailAt
    Private strFailAt

    Private Sub Class_Initialize
        Set objLines = New TextList
        lngFailAt = 0
        strFailAt = ""
    End Sub

    Public Property Get Lines
        Set Lines = objLines
    End Property

    ' Raises the error, once the line stands, if this is the event that is to fail.
    Public Sub Add(line)
        objLines.Add line
        If objLines.Count = lngFailAt Or line = strFailAt Then
            lngFailAt = 0
            strFailAt = ""
            Err.Raise PlannedError, "host", "planned failure at: " & line
        End If
    End Sub

    Public Sub FailAt(position)
        lngFailAt = position
    End Sub

    Public Sub FailAtLine(line)
        strFailAt = line
    End Sub

    Public Sub Clear
        objLines.Clear
        lngFailAt = 0
        strFailAt = ""
    End Sub
End Class

Class Field
    Public Name
    Public FromValue
    Public ToValue
    Public IsRange
    Public IsSeveral
    Public ListSource
    Public Token  ' the last one that was stored, -1 before

    Private Sub Class_Initialize
        IsRange = False
        IsSeveral = False
        ListSource = ""
        Token = -1
    End Sub
End Class

' The answer to a statement. Columns and cells stand from 1.
Class Rows
    Public IsWhole  ' the statement itself, not only its beginning
    Public Sql
    Public Columns
    Public Cells    ' by the number of the row from 1

    Private Sub Class_Initialize
        Set Cells = CreateObject("Scripting.Dictionary")
        Columns = Array("columns")
    End Sub
End Class

Class Scenario
    Public ClassName
    Public Dialog     ' its identity
    Public Sql
    Public Language
    Public Login      ' members by name
    Public Ledger
    Public Arguments
    Public Lists
    Public Texts
    Public Codes
    Public Settings
    Public Fields     ' from 1
    Public Wheres     ' by token, "" for all others
    Public Answers    ' from 1
    Public Guid
    Public Expected   ' events

    Private Sub Class_Initialize
        Set Login = NewTable
        Set Ledger = NewTable
        Set Arguments = NewTable
        Set Lists = NewTable
        Set Texts = NewTable
        Set Codes = NewTable
        Set Settings = NewTable
        Set Fields = NewTable
        Set Wheres = NewTable
        Set Answers = NewTable
        Set Expected = New TextList
        Guid = ""
        Sql = "tempdb..result"
        Language = "zh-CN"
        Login.Item("VosDbName") = "account database"
        Login.Item("AccountId") = "001"
        Login.Item("Year") = "2008"
        Login.Item("Month") = 7
        Login.Item("Date") = DateSerial(2008, 7, 31)
        Login.Item("Password") = "login password"
        Login.Item("UserId") = "demo"
        Login.Item("ConnectionText") = "connection text"
        Login.Item("SystemConnection") = "system database"
        Login.Item("AuthService") = True
        Ledger.Item("Year") = "2008"
        Ledger.Item("ValueStyle") = "按仓库核算"
        Ledger.Item("InventoryQualifier") = ""
    End Sub

    Private Function NewTable
        Set NewTable = CreateObject("Scripting.Dictionary")
    End Function

    Public Sub Read(path)
        Dim stream, line
        Set stream = CreateObject("Scripting.FileSystemObject").OpenTextFile(path, 1, False, -1)
        Do Until stream.AtEndOfStream
            line = stream.ReadLine
            If line = "events" Then Exit Do
            Tell line
        Loop
        Do Until stream.AtEndOfStream
            Expected.Add Unescaped(stream.ReadLine)
        Loop
        stream.Close
    End Sub

    ' One entry, as a line of a file has it.
    Public Sub Tell(line)
        Dim values, answer
        values = Split(line, "|")
        Select Case values(0)
            Case "class": ClassName = values(1)
            Case "dialog": Dialog = Unescaped(values(1))
            Case "login": Login.Item(values(1)) = ValueIn(values(2))
            Case "sql": Sql = Unescaped(values(1))
            Case "language": Language = Unescaped(values(1))
            Case "arg": Arguments.Item(Unescaped(values(1))) = ValueIn(values(2))
            Case "field": ReadField values
            Case "where": Wheres.Item(values(1)) = Unescaped(values(2))
            Case "list": Lists.Item(Unescaped(values(1))) = ValueIn(values(2))
            Case "text": Texts.Item(Unescaped(values(1))) = ValueIn(values(2))
            Case "code": Codes.Item(Unescaped(values(1))) = ValueIn(values(2))
            Case "ledger": Ledger.Item(values(1)) = ValueIn(values(2))
            Case "setting": Settings.Item(Unescaped(values(1))) = ValueIn(values(2))
            Case "guid": Guid = values(1)
            Case "rows"
                Set answer = New Rows
                answer.IsWhole = (values(1) = "whole")
                answer.Sql = Unescaped(values(2))
                Answers.Add Answers.Count + 1, answer
            Case "columns"
                Answers.Item(Answers.Count).Columns = ColumnsIn(values)
            Case "row"
                Set answer = Answers.Item(Answers.Count)
                answer.Cells.Add answer.Cells.Count + 1, ValuesIn(values)
            Case Else
                Err.Raise vbObjectError + 1, "scenario", "a scenario has no entry " & values(0)
        End Select
    End Sub

    ' A row of AccInformation.
    Public Sub SetParameter(system, name, content)
        Tell "rows|whole|Select * FROM AccInformation where cSysID= N'" & system & "' and cName= N'" & name & "'"
        Tell "columns|cSysID|cName|cvalue|cDefault"
        Tell "row|" & system & "|" & name & "|" & content & "|#null"
    End Sub

    Private Sub ReadField(values)
        Dim added, i
        Set added = New Field
        added.Name = Unescaped(values(1))
        added.FromValue = Empty
        added.ToValue = Empty
        If UBound(values) >= 2 Then added.FromValue = ValueIn(values(2))
        If UBound(values) >= 3 Then added.ToValue = ValueIn(values(3))
        For i = 4 To UBound(values)
            If values(i) = "range" Then added.IsRange = True
            If values(i) = "several" Then added.IsSeveral = True
        Next
        Fields.Add Fields.Count + 1, added
    End Sub

    ' The answer to a statement; without rows where the scenario tells nothing.
    Public Function RowsFor(statement)
        Dim i, answer
        For i = 1 To Answers.Count
            Set answer = Answers.Item(i)
            If answer.IsWhole And answer.Sql = statement Then
                Set RowsFor = answer
                Exit Function
            End If
        Next
        For i = 1 To Answers.Count
            Set answer = Answers.Item(i)
            If Not answer.IsWhole And Left(statement, Len(answer.Sql)) = answer.Sql Then
                Set RowsFor = answer
                Exit Function
            End If
        Next
        Set RowsFor = New Rows
    End Function

    Private Function ColumnsIn(texts)
        Dim i
        For i = 1 To UBound(texts)
            texts(i) = Unescaped(texts(i))
        Next
        ColumnsIn = texts
    End Function

    Private Function ValuesIn(texts)
        Dim i
        For i = 1 To UBound(texts)
            texts(i) = ValueIn(texts(i))
        Next
        ValuesIn = texts
    End Function

    Private Function ValueIn(text)
        Dim content
        content = Mid(text, InStr(text & " ", " ") + 1)
        If Left(text, 1) <> "#" Then
            ValueIn = Unescaped(text)
        ElseIf text = "#empty" Then
            ValueIn = Empty
        ElseIf text = "#null" Then
            ValueIn = Null
        ElseIf text = "#true" Or text = "#false" Then
            ValueIn = (text = "#true")
        ElseIf Left(text, 5) = "#int " Then
            ValueIn = CLng(content)
        ElseIf Left(text, 8) = "#double " Then
            ValueIn = CDbl(content)
        ElseIf Left(text, 9) = "#decimal " Then
            ValueIn = CCur(content)
        ElseIf Left(text, 6) = "#date " Then
            ValueIn = DateSerial(CInt(Left(content, 4)), CInt(Mid(content, 6, 2)), CInt(Mid(content, 9, 2)))
        Else
            Err.Raise vbObjectError + 1, "scenario", "a scenario has no value " & text
        End If
    End Function

    Private Function Unescaped(text)
        Unescaped = text
        If InStr(text, "\") = 0 Then Exit Function
        Unescaped = Replace(Unescaped, "\\", Chr(1))
        Unescaped = Replace(Unescaped, "\p", "|")
        Unescaped = Replace(Unescaped, "\r", vbCr)
        Unescaped = Replace(Unescaped, "\n", vbLf)
        Unescaped = Replace(Unescaped, "\t", vbTab)
        Unescaped = Replace(Unescaped, "\h", "#")
        Unescaped = Replace(Unescaped, Chr(1), "\")
    End Function
End Class
