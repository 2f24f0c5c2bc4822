<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>tern7::TDropDownLabel</name>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>press to change</source>
        <translation>押すと変更できます</translation>
    </message>
    <message>
        <source>%1, press to change</source>
        <translation>%1、押すと変更できます</translation>
    </message>
</context>
<context>
    <name>tern7::TFieldTree</name>
    <message>
        <source>No field has this name</source>
        <translation>この名前のフィールドはありません</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>tern7::TFilterRowView</name>
    <message>
        <source>Row menu</source>
        <translation>行のメニュー</translation>
    </message>
    <message>
        <source>Row takes part</source>
        <translation>行を使う</translation>
    </message>
    <message>
        <source>The bracket around it is switched off</source>
        <translation>外側のかっこが無効になっています</translation>
    </message>
    <message>
        <source>The condition is left out: %1</source>
        <translation>この条件は使われません: %1</translation>
    </message>
    <message>
        <source>How the conditions are joined</source>
        <translation>条件のつなぎ方</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>%1, operator</source>
        <translation>%1、演算子</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>%1, second value</source>
        <translation>%1、2 番目の値</translation>
    </message>
    <message>
        <source>The list is being read</source>
        <translation>一覧を読み込み中です</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>一覧を読み込めませんでした: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TKPopupMenu</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>条件を追加</translation>
    </message>
    <message>
        <source>Add bracket</source>
        <translation>かっこを追加</translation>
    </message>
    <message>
        <source>Delete bracket</source>
        <translation>かっこを削除</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>条件を削除</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>無効にする</translation>
    </message>
    <message>
        <source>Change bracket</source>
        <translation>かっこを変更</translation>
    </message>
    <message>
        <source>Change joining word</source>
        <translation>つなぎの語を変更</translation>
    </message>
    <message>
        <source>Choose field</source>
        <translation>フィールドを選択</translation>
    </message>
    <message>
        <source>Choose operator</source>
        <translation>演算子を選択</translation>
    </message>
    <message>
        <source>Change value</source>
        <translation>値を変更</translation>
    </message>
    <message>
        <source>Make parameter</source>
        <translation>パラメーターにする</translation>
    </message>
    <message>
        <source>Make constant</source>
        <translation>定数にする</translation>
    </message>
    <message>
        <source>Change parameter</source>
        <translation>パラメーターを変更</translation>
    </message>
    <message>
        <source>Edit sub-query</source>
        <translation>サブクエリを編集</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>見出しを変更</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>列を追加</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>列を削除</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>列を移動</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>列を複製</translation>
    </message>
    <message>
        <source>Change formula</source>
        <translation>式を変更</translation>
    </message>
    <message>
        <source>Change sorting</source>
        <translation>並べ替えを変更</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>並べ替えの順序を変更</translation>
    </message>
    <message>
        <source>Just sorting</source>
        <translation>並べ替えのみ</translation>
    </message>
    <message>
        <source>Edit columns</source>
        <translation>列を編集</translation>
    </message>
    <message>
        <source>Change options</source>
        <translation>オプションを変更</translation>
    </message>
    <message>
        <source>Choose main table</source>
        <translation>主テーブルを選択</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Renumber sorting</source>
        <translation>並べ替えの番号を振り直す</translation>
    </message>
    <message>
        <source>Clear columns</source>
        <translation>列を消去</translation>
    </message>
    <message>
        <source>Join another way</source>
        <translation>別の経路で結合</translation>
    </message>
    <message>
        <source>Delete row</source>
        <translation>行を削除</translation>
    </message>
    <message>
        <source>Switch row on or off</source>
        <translation>行のオン/オフを切り替え</translation>
    </message>
    <message>
        <source>Row menu</source>
        <translation>行のメニュー</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryPanel</name>
    <message>
        <source>level %1</source>
        <translation>レベル %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中の %1</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>使われません: %1</translation>
    </message>
    <message>
        <source>The list is empty</source>
        <translation>一覧は空です</translation>
    </message>
    <message>
        <source>The list is being read...</source>
        <translation>一覧を読み込み中...</translation>
    </message>
    <message>
        <source>The list could not be read: %1</source>
        <translation>一覧を読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>&amp;Read it again</source>
        <translation>もう一度読み込む(&amp;R)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>tern7::TKResultFieldsPanel</name>
    <message>
        <source>Column %1: %2, %3</source>
        <translation>列 %1: %2、%3</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>列 %1</translation>
    </message>
    <message>
        <source>Sorting of %1</source>
        <translation>%1 の並べ替え</translation>
    </message>
    <message>
        <source>Result fields</source>
        <translation>結果フィールド</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中の %1</translation>
    </message>
    <message>
        <source>Ctrl and a click: formula, function, caption</source>
        <translation>Ctrl を押しながらクリック: 式、関数、見出し</translation>
    </message>
</context>
<context>
    <name>tern7::TKTitlesGrid</name>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Translated</source>
        <translation>翻訳</translation>
    </message>
</context>
<context>
    <name>tern7::TListPopup</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>tern7::TRowProblem</name>
    <message>
        <source>choose a field</source>
        <translation>フィールドを選んでください</translation>
    </message>
    <message>
        <source>choose an operator</source>
        <translation>演算子を選んでください</translation>
    </message>
    <message>
        <source>this field is not known any more</source>
        <translation>このフィールドはもうありません</translation>
    </message>
    <message>
        <source>this operator is not known any more</source>
        <translation>この演算子はもうありません</translation>
    </message>
    <message>
        <source>define the sub-query</source>
        <translation>サブクエリを指定してください</translation>
    </message>
    <message>
        <source>enter a value</source>
        <translation>値を入力してください</translation>
    </message>
    <message>
        <source>“%1” can not be read as a date or time</source>
        <translation>「%1」は日付や時刻として読めません</translation>
    </message>
    <message>
        <source>“%1” is no list of numbers</source>
        <translation>「%1」は数値の一覧ではありません</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>「%1」は数値ではありません</translation>
    </message>
    <message>
        <source>sub-query: %1</source>
        <translation>サブクエリ: %1</translation>
    </message>
    <message>
        <source>write for example %1</source>
        <translation>例: %1</translation>
    </message>
    <message>
        <source>write for example %1, or always %2</source>
        <translation>例: %1、または常に %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>left out of the SQL that was read: %1</source>
        <translation>読み込んだ SQL から省かれた部分: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgRFieldsEdit</name>
    <message>
        <source>A bracket or quote has no counterpart</source>
        <translation>かっこまたは引用符が対になっていません</translation>
    </message>
    <message>
        <source>This column has no expression yet</source>
        <translation>この列にはまだ式がありません</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>関数</translation>
    </message>
    <message>
        <source>Function over the rows</source>
        <translation>行に対する関数</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>A comment or semicolon can not stand in an expression</source>
        <translation>式にコメントやセミコロンを含めることはできません</translation>
    </message>
    <message>
        <source>There is no field in it: fields stand in braces, {Name}</source>
        <translation>式にフィールドがありません。フィールドは波かっこで囲みます: {名前}</translation>
    </message>
    <message>
        <source>An invisible character that turns the direction of text can not stand in an expression</source>
        <translation>テキストの方向を変える見えない文字は式に使えません</translation>
    </message>
    <message>
        <source>More than one field has this name: %1</source>
        <translation>この名前のフィールドが複数あります: %1</translation>
    </message>
    <message>
        <source>Perhaps it is meant: %1</source>
        <translation>もしかして: %1</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgSubQuery</name>
    <message>
        <source>Choose the field that the sub-query returns.</source>
        <translation>サブクエリが返すフィールドを選んでください。</translation>
    </message>
</context>
<context>
    <name>tern7::T_dlgTitlesEdit</name>
    <message>
        <source>Titles editor</source>
        <translation>見出しの編集</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>読み込み(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Load From File...</source>
        <translation>ファイルから読み込み(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Save To File</source>
        <translation>ファイルに保存(&amp;S)</translation>
    </message>
    <message>
        <source>TERN Titles (*.ttl)</source>
        <translation>TERN の見出し (*.ttl)</translation>
    </message>
    <message>
        <source>Query files (*.qry)</source>
        <translation>クエリファイル (*.qry)</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>変更を破棄しますか?</translation>
    </message>
    <message>
        <source>The file holds no titles that can be used here: %1</source>
        <translation>このファイルにはここで使えるタイトルがありません: %1</translation>
    </message>
    <message>
        <source>The file is not UTF-8 and was read as Windows-1252.</source>
        <translation>ファイルは UTF-8 ではないため、Windows-1252 として読み込みました。</translation>
    </message>
</context>
</TS>
