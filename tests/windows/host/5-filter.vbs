' The filter of a call, over the fields of the scenario.

Class ScriptedFilter
    Public IdentityName  ' of the dialog
    Public LoginObject
    Private objArguments

    Private Sub Class_Initialize
        IdentityName = ""
        Set LoginObject = New ScriptedLogin
        Set objArguments = New NamedValues
        objArguments.Name = "ContextArgs"
    End Sub

    Private Sub Note(what)
        Host.Events.Add "RawFilter." & what
    End Sub

    Public Property Get ShownName
        ShownName = "RawFilter"
    End Property

    Public Property Get FilterID
        Note "FilterID"
        FilterID = IdentityName
    End Property

    Public Property Get Login
        Note "Login"
        Set Login = LoginObject
    End Property

    Public Property Get FilterList
        Note "FilterList"
        Set FilterList = New ScriptedItems
    End Property

    Public Property Get ContextArgs
        Note "ContextArgs"
        Set ContextArgs = objArguments
    End Property

    Public Function GetFieldValue(key)
        Note "GetFieldValue " & key
        GetFieldValue = FieldNamed(key).FromValue
    End Function

    Public Sub SetFieldValue(key, value)
        Dim found
        Note "SetFieldValue " & key & ", " & PlainText(value)
        Set found = FieldNamed(key)
        If Not found Is Nothing Then found.FromValue = value
        If Right(key, 3) = "__2" Then
            Set found = FieldNamed(Left(key, Len(key) - 3))
            If Not found Is Nothing Then found.ToValue = value
        End If
    End Sub

    Public Sub SetFieldRefCondition(key, text, condition)
        Note "SetFieldRefCondition " & key & ", " & text & ", " & condition
    End Sub

    Public Sub SetFieldFlag(key, flag)
        Note "SetFieldFlag " & key & ", " & PlainText(flag)
    End Sub

    Public Sub SetFieldLocked(key, locked)
        Note "SetFieldLocked " & key & ", " & PlainText(locked)
    End Sub

    Public Sub RefreshFieldList(key, enumType, list)
        Note "RefreshFieldList " & key & ", " & enumType & ", " & list
    End Sub

    Public Sub SetFieldRangeList(key, list)
        Note "SetFieldRangeList " & key & ", " & list
    End Sub

    Public Function GetWhereWithToken(token)
        Note "GetWhereWithToken " & token
        GetWhereWithToken = ""
        If Host.Scenario.Wheres.Exists("") Then GetWhereWithToken = Host.Scenario.Wheres.Item("")
        If Host.Scenario.Wheres.Exists(CStr(token)) Then GetWhereWithToken = Host.Scenario.Wheres.Item(CStr(token))
    End Function
End Class

' The field of that key, without regard to case; nothing if there is none.
Function FieldNamed(key)
    Dim i
    Set FieldNamed = Nothing
    For i = 1 To Host.Scenario.Fields.Count
        If LCase(Host.Scenario.Fields.Item(i).Name) = LCase(key) Then Set FieldNamed = Host.Scenario.Fields.Item(i)
    Next
End Function

Class ScriptedItems
    Public Property Get Count
        Host.Events.Add "FilterList.Count"
        Count = Host.Scenario.Fields.Count
    End Property

    Public Default Property Get Item(key)
        Dim found
        Host.Events.Add "FilterList.Item " & key
        Set Item = Nothing
        If VarType(key) = vbString Then
            Set found = FieldNamed(key)
            If found Is Nothing Then Exit Property
        Else
            Set found = Host.Scenario.Fields.Item(key)
        End If
        Set Item = New ScriptedItem
        Item.Bind found
    End Property
End Class

Class ScriptedItem
    Private objField

    Public Sub Bind(field)
        Set objField = field
    End Sub

    Private Sub Note(what)
        Host.Events.Add objField.Name & "." & what
    End Sub

    Public Property Get Name
        Note "Name"
        Name = objField.Name
    End Property

    Public Property Get ControlKey
        Note "ControlKey"
        ControlKey = objField.Name
    End Property

    Public Property Get varValue
        Note "varValue"
        varValue = objField.FromValue
    End Property

    Public Property Let varValue(value)
        Note "varValue = " & PlainText(value)
        objField.FromValue = value
    End Property

    Public Property Get varValue2
        Note "varValue2"
        varValue2 = objField.ToValue
    End Property

    Public Property Let varValue2(value)
        Note "varValue2 = " & PlainText(value)
        objField.ToValue = value
    End Property

    Public Property Get RangeInput
        Note "RangeInput"
        RangeInput = objField.IsRange
    End Property

    Public Property Get IsMultSel
        Note "IsMultSel"
        IsMultSel = objField.IsSeveral
    End Property

    Public Property Get ListSource
        Note "ListSource"
        ListSource = objField.ListSource
    End Property

    Public Property Let ListSource(source)
        Note "ListSource = " & source
        objField.ListSource = source
    End Property

    Public Property Let LngGrouptoken(token)
        Note "LngGrouptoken = " & token
        objField.Token = token
    End Property
End Class

' Values by key, without regard to case, in the order in which they came.
Class NamedValues
    Public Name
    Private dicKeys
    Private dicValues

    Private Sub Class_Initialize
        Set dicKeys = CreateObject("Scripting.Dictionary")
        Set dicValues = CreateObject("Scripting.Dictionary")
    End Sub

    Public Property Get ShownName
        ShownName = Name
    End Property

    Public Property Get Count
        Host.Events.Add Name & ".Count"
        Count = dicKeys.Count
    End Property

    Public Default Property Get Item(key)
        Dim i
        Host.Events.Add Name & ".Item " & key
        Item = Empty
        For i = 1 To dicKeys.Count
            If VarType(key) <> vbString Then
                If i = key Then Item = dicValues.Item(i)
            ElseIf LCase(dicKeys.Item(i)) = LCase(key) Then
                Item = dicValues.Item(i)
            End If
        Next
    End Property

    Public Sub Add(value, key)
        Host.Events.Add Name & ".Add " & PlainText(value) & ", " & key
        Put key, value
    End Sub

    Public Sub Put(key, value)
        dicKeys.Add dicKeys.Count + 1, key
        dicValues.Add dicValues.Count + 1, value
    End Sub
End Class
