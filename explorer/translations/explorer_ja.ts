<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>main</name>
    <message>
        <source>Questions to a database without SQL.</source>
        <translation>SQL を使わずにデータベースに質問します。</translation>
    </message>
    <message>
        <source>Opens a database: a SQLite file, or an address such as postgresql://user@host/name.</source>
        <translation>データベースを開きます。SQLite ファイル、または postgresql://user@host/name のようなアドレスです。</translation>
    </message>
    <message>
        <source>Loads the structure instead of importing it.</source>
        <translation>構造を取り込まず、ファイルから読み込みます。</translation>
    </message>
    <message>
        <source>Opens a saved query.</source>
        <translation>保存したクエリを開きます。</translation>
    </message>
    <message>
        <source>Runs the query, saves a picture of the window and ends.</source>
        <translation>クエリを実行し、ウィンドウの画像を保存して終了します。</translation>
    </message>
    <message>
        <source>Language of the program.</source>
        <translation>プログラムの言語。</translation>
    </message>
    <message>
        <source>&quot;light&quot; or &quot;dark&quot;.</source>
        <translation>「light」(明るい) または「dark」(暗い)。</translation>
    </message>
    <message>
        <source>Size of the window.</source>
        <translation>ウィンドウの大きさ。</translation>
    </message>
</context>
<context>
    <name>messages</name>
    <message>
        <source>The file %1 can not be opened.</source>
        <translation>ファイル %1 を開けません。</translation>
    </message>
    <message>
        <source>The file %1 can not be written.</source>
        <translation>ファイル %1 に書き込めません。</translation>
    </message>
    <message>
        <source>The text is damaged: section %2 has a wrong value of %1: %3</source>
        <translation>テキストが壊れています: セクション %2 の %1 の値が正しくありません: %3</translation>
    </message>
    <message>
        <source>The text is damaged: section %1 is missing.</source>
        <translation>テキストが壊れています: セクション %1 がありません。</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>テキストが長すぎます。</translation>
    </message>
    <message>
        <source>Rows are nested too deep.</source>
        <translation>行の入れ子が深すぎます。</translation>
    </message>
    <message>
        <source>The text has the version %1; what is newer than %2 was not read.</source>
        <translation>テキストのバージョンは %1 です。%2 より新しい部分は読み込まれませんでした。</translation>
    </message>
    <message>
        <source>The text is not UTF-8; it was read as Windows-1252.</source>
        <translation>テキストは UTF-8 ではありません。Windows-1252 として読み込みました。</translation>
    </message>
    <message>
        <source>The database has no table %1.</source>
        <translation>データベースにテーブル %1 がありません。</translation>
    </message>
    <message>
        <source>No links of the database lead from one of the tables to the others.</source>
        <translation>テーブルの一つから他のテーブルへつながるリンクがデータベースにありません。</translation>
    </message>
    <message>
        <source>The query has no column and no condition yet.</source>
        <translation>クエリにはまだ列も条件もありません。</translation>
    </message>
    <message>
        <source>No database is open.</source>
        <translation>データベースが開かれていません。</translation>
    </message>
    <message>
        <source>This can not be a value of “%1”: %2</source>
        <translation>「%1」の値にはできません: %2</translation>
    </message>
    <message>
        <source>This condition is text that can not be executed safely: %1</source>
        <translation>この条件は安全に実行できないテキストです: %1</translation>
    </message>
    <message>
        <source>A value holds a NUL character.</source>
        <translation>値に NUL 文字が含まれています。</translation>
    </message>
    <message>
        <source>There is no field %1.</source>
        <translation>フィールド %1 はありません。</translation>
    </message>
    <message>
        <source>A text in an expression with fields can not hold “@” and a digit: %1</source>
        <translation>フィールドを含む式の文字列に「@」と数字を含めることはできません: %1</translation>
    </message>
    <message>
        <source>The statement for a list of values must give two columns.</source>
        <translation>値の一覧の文は 2 つの列を返す必要があります。</translation>
    </message>
    <message>
        <source>The database must be given as sqlite:PATH, postgresql://user@host:port/name, mysql://user@host:port/name or odbc:DSN.</source>
        <translation>データベースは sqlite:PATH、postgresql://user@host:port/name、mysql://user@host:port/name、odbc:DSN のいずれかの形で指定してください。</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>ポートは 1 から 65535 までの数でなければなりません。</translation>
    </message>
    <message>
        <source>The address of the database has an unknown or wrong option “%1”.</source>
        <translation>データベースのアドレスに不明または誤ったオプション「%1」があります。</translation>
    </message>
    <message>
        <source>The address names no database.</source>
        <translation>アドレスにデータベースの名前がありません。</translation>
    </message>
    <message>
        <source>There is no database file %1.</source>
        <translation>データベースファイル %1 はありません。</translation>
    </message>
    <message>
        <source>The driver %1 of Qt SQL is not installed.</source>
        <translation>Qt SQL のドライバー %1 がインストールされていません。</translation>
    </message>
    <message>
        <source>The database %1 can not be opened: %2</source>
        <translation>データベース %1 を開けません: %2</translation>
    </message>
    <message>
        <source>Only SELECT statements are executed.</source>
        <translation>SELECT 文だけが実行されます。</translation>
    </message>
    <message>
        <source>Only one statement is executed at a time.</source>
        <translation>一度に実行できる文は 1 つだけです。</translation>
    </message>
    <message>
        <source>A quote, comment or bracket of the statement is not closed.</source>
        <translation>文の引用符、コメント、または括弧が閉じられていません。</translation>
    </message>
    <message>
        <source>The statement holds a NUL character.</source>
        <translation>文に NUL 文字が含まれています。</translation>
    </message>
    <message>
        <source>The parameter %1 has no value.</source>
        <translation>パラメーター %1 に値がありません。</translation>
    </message>
</context>
<context>
    <name>operators</name>
    <message>
        <source>is equal to</source>
        <translation>が次と等しい</translation>
    </message>
    <message>
        <source>is not equal to</source>
        <translation>が次と等しくない</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>が次より小さい</translation>
    </message>
    <message>
        <source>is less than or equal to</source>
        <translation>が次以下</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>が次より大きい</translation>
    </message>
    <message>
        <source>is greater than or equal to</source>
        <translation>が次以上</translation>
    </message>
    <message>
        <source>is null</source>
        <translation>が空</translation>
    </message>
    <message>
        <source>is in list</source>
        <translation>が次のどれか</translation>
    </message>
    <message>
        <source>starts with</source>
        <translation>が次で始まる</translation>
    </message>
    <message>
        <source>does not start with</source>
        <translation>が次で始まらない</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>が次を含む</translation>
    </message>
    <message>
        <source>does not contain</source>
        <translation>が次を含まない</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>が次の間</translation>
    </message>
    <message>
        <source>and</source>
        <translation>と</translation>
    </message>
</context>
<context>
    <name>tern7::TConnectionDialog</name>
    <message>
        <source>Open database</source>
        <translation>データベースを開く</translation>
    </message>
    <message>
        <source>SQLite file</source>
        <translation>SQLite ファイル</translation>
    </message>
    <message>
        <source>PostgreSQL server</source>
        <translation>PostgreSQL サーバー</translation>
    </message>
    <message>
        <source>MariaDB or MySQL server</source>
        <translation>MariaDB または MySQL サーバー</translation>
    </message>
    <message>
        <source>ODBC data source</source>
        <translation>ODBC データソース</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>データベース(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>not kept</source>
        <translation>保存されません</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>サーバー(&amp;S):</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>ポート(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Name of the database:</source>
        <translation>データベース名(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>ユーザー(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>Name of a data source, or a connection string</source>
        <translation>データソース名または接続文字列</translation>
    </message>
    <message>
        <source>&amp;Source:</source>
        <translation>ソース(&amp;S):</translation>
    </message>
    <message>
        <source>SQLite databases (*.db *.sqlite *.sqlite3 *.db3);;All files (*)</source>
        <translation>SQLite データベース (*.db *.sqlite *.sqlite3 *.db3);;すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>tern7::TKQueryEditor</name>
    <message>
        <source>Equal rows</source>
        <translation>同じ行</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>列を追加</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>SQL の読み込み</translation>
    </message>
    <message>
        <source>Delete column</source>
        <translation>列を削除</translation>
    </message>
</context>
<context>
    <name>tern7::TMainWindow</name>
    <message>
        <source>&amp;Result</source>
        <translation>結果(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>列(&amp;O)</translation>
    </message>
    <message>
        <source>Con&amp;ditions</source>
        <translation>条件(&amp;D)</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>新しいクエリ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Open &amp;database...</source>
        <translation>データベースを開く(&amp;D)...</translation>
    </message>
    <message>
        <source>Recent d&amp;atabases</source>
        <translation>最近使ったデータベース(&amp;A)</translation>
    </message>
    <message>
        <source>Sa&amp;mple database</source>
        <translation>サンプルデータベース(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>新しいクエリ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open query...</source>
        <translation>クエリを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Recent queries</source>
        <translation>最近使ったクエリ(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>クエリを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save query &amp;as...</source>
        <translation>名前を付けてクエリを保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Read S&amp;QL...</source>
        <translation>SQL を読み込む(&amp;Q)...</translation>
    </message>
    <message>
        <source>Save &amp;rows as CSV...</source>
        <translation>行を CSV で保存(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>クエリ(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>Run the query (F5)</source>
        <translation>クエリを実行 (F5)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Run after every c&amp;hange</source>
        <translation>変更するたびに実行(&amp;H)</translation>
    </message>
    <message>
        <source>Add c&amp;olumn...</source>
        <translation>列を追加(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Equal rows only once</source>
        <translation>同じ行は一度だけ(&amp;E)</translation>
    </message>
    <message>
        <source>E&amp;dit columns...</source>
        <translation>列を編集(&amp;D)...</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Rows at &amp;most:</source>
        <translation>最大行数(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>行をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>元に戻す(&amp;U): %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>やり直し(&amp;R): %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Queries (*.qry);;All files (*)</source>
        <translation>クエリ (*.qry);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Sample database</source>
        <translation>サンプルデータベース</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>データベースを開く</translation>
    </message>
    <message>
        <source>Open query</source>
        <translation>クエリを開く</translation>
    </message>
    <message>
        <source>Save query</source>
        <translation>クエリを保存</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>保存されていない変更</translation>
    </message>
    <message>
        <source>The query was changed. Save the changes?</source>
        <translation>クエリが変更されています。変更を保存しますか?</translation>
    </message>
    <message>
        <source>Read SQL</source>
        <translation>SQL を読み込む</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of this query refer to fields that the database does not have. They are marked and take no part.</source>
        <translation>
            <numerusform>このクエリの %n 行は、データベースにないフィールドを参照しています。印を付け、使わないようにしました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Save rows</source>
        <translation>行を保存</translation>
    </message>
    <message>
        <source>Comma separated values (*.csv)</source>
        <translation>カンマ区切り (*.csv)</translation>
    </message>
    <message>
        <source>Add a column to begin.</source>
        <translation>まず列を追加してください。</translation>
    </message>
    <message>
        <source>One row for all records.</source>
        <translation>全レコードで 1 行。</translation>
    </message>
    <message>
        <source>One row for each: %1.</source>
        <translation>次の組ごとに 1 行: %1。</translation>
    </message>
    <message>
        <source>Add a column first: it is what the result will show.</source>
        <translation>先に列を追加してください。結果に表示されます。</translation>
    </message>
    <message>
        <source>Add column</source>
        <translation>列を追加</translation>
    </message>
    <message>
        <source>Show the row</source>
        <translation>行を表示</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>「%1」: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n condition(s) are not finished and take no part (%1).</source>
        <translation>
            <numerusform>%n 件の条件が未完成のため使われません (%1)。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;SQL</source>
        <translation>SQL を表示(&amp;S)</translation>
    </message>
    <message>
        <source>And/or &amp;words instead of brackets</source>
        <translation>かっこの代わりに「かつ/または」を使う(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Captions</source>
        <translation>見出し(&amp;C)</translation>
    </message>
    <message>
        <source>Of the con&amp;ditions...</source>
        <translation>条件の見出し(&amp;D)...</translation>
    </message>
    <message>
        <source>Of the c&amp;olumns...</source>
        <translation>列の見出し(&amp;O)...</translation>
    </message>
    <message>
        <source>As &amp;delivered</source>
        <translation>初期状態に戻す(&amp;D)</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>外観(&amp;O)</translation>
    </message>
    <message>
        <source>As the s&amp;ystem</source>
        <translation>システムに合わせる(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>明るい(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>暗い(&amp;D)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>標準の大きさ(&amp;N)</translation>
    </message>
    <message>
        <source>Waiting for the database...</source>
        <translation>データベースを待っています...</translation>
    </message>
    <message>
        <source>Reading table %1 of %2...</source>
        <translation>テーブル %1 / %2 を読み込み中...</translation>
    </message>
    <message>
        <source>Captions, formulas, sums and counts (Ctrl+Shift+K)</source>
        <translation>見出し、式、合計、件数 (Ctrl+Shift+K)</translation>
    </message>
    <message>
        <source>Choose a field that the result shows (Ctrl+K)</source>
        <translation>結果に表示するフィールドを選ぶ (Ctrl+K)</translation>
    </message>
    <message>
        <source>Start from &amp;table...</source>
        <translation>開始テーブル(&amp;T)...</translation>
    </message>
    <message>
        <source>Tables: %1.</source>
        <translation>テーブル: %1。</translation>
    </message>
    <message>
        <source>Start from another table...</source>
        <translation>別のテーブルから始める...</translation>
    </message>
    <message>
        <source>Chosen by the columns</source>
        <translation>列に合わせる</translation>
    </message>
    <message>
        <source>&amp;Join another way...</source>
        <translation>別の経路で結合(&amp;J)...</translation>
    </message>
    <message>
        <source>%1 and %2 have only %3 in common.</source>
        <translation>%1 と %2 に共通するのは %3 だけです。</translation>
    </message>
    <message>
        <source>Join another way...</source>
        <translation>別の経路で結合...</translation>
    </message>
    <message>
        <source>The query %1 could not be opened: %2</source>
        <translation>クエリ %1 を開けませんでした: %2</translation>
    </message>
    <message>
        <source>The query could not be saved as %1: %2</source>
        <translation>クエリを %1 として保存できませんでした: %2</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>ファイル %1 を読み込めませんでした: %2</translation>
    </message>
    <message>
        <source>The rows could not be saved as %1: %2</source>
        <translation>行を %1 として保存できませんでした: %2</translation>
    </message>
    <message>
        <source>The string that begins at line %1, column %2 is not closed.</source>
        <translation>%1 行 %2 列で始まる文字列が閉じられていません。</translation>
    </message>
    <message>
        <source>At line %1, column %2 a bracket is missing, or there is one too many.</source>
        <translation>%1 行 %2 列で括弧が足りないか、余分にあります。</translation>
    </message>
    <message>
        <source>The statement ends too early, at line %1, column %2.</source>
        <translation>文が途中で終わっています (%1 行 %2 列)。</translation>
    </message>
    <message>
        <source>The text is no SELECT statement that can be read: from line %1, column %2 on it does not go on as one.</source>
        <translation>読み取れる SELECT 文ではありません: %1 行 %2 列から先が文として続いていません。</translation>
    </message>
    <message>
        <source>S&amp;tructure</source>
        <translation>構造(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Open structure...</source>
        <translation>構造を開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save structure as...</source>
        <translation>構造に名前を付けて保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Import it anew</source>
        <translation>再インポート(&amp;I)</translation>
    </message>
    <message>
        <source>Structures (*.str);;All files (*)</source>
        <translation>構造 (*.str);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open structure</source>
        <translation>構造を開く</translation>
    </message>
    <message>
        <source>The structure %1 could not be opened: %2</source>
        <translation>構造 %1 を開けませんでした: %2</translation>
    </message>
    <message>
        <source>Save structure</source>
        <translation>構造を保存</translation>
    </message>
    <message>
        <source>The structure could not be saved as %1: %2</source>
        <translation>構造を %1 として保存できませんでした: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) of this query refer to fields that the database does not have. Choose others, or remove them.</source>
        <translation>
            <numerusform>このクエリの %n 列は、データベースにないフィールドを参照しています。別のフィールドを選ぶか、削除してください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>削除する</translation>
    </message>
    <message>
        <source>The query asks for the value of %1.</source>
        <translation>クエリには %1 の値が必要です。</translation>
    </message>
    <message>
        <source>SQ&amp;L</source>
        <translation>SQ&amp;L</translation>
    </message>
    <message>
        <source>Add co&amp;ndition...</source>
        <translation>条件を追加(&amp;N)...</translation>
    </message>
    <message>
        <source>To the next label</source>
        <translation>次の語へ</translation>
    </message>
    <message>
        <source>To the row above or below</source>
        <translation>上または下の行へ</translation>
    </message>
    <message>
        <source>Open the label: its menu, list or editor</source>
        <translation>語を開く: メニュー、一覧、または入力欄</translation>
    </message>
    <message>
        <source>Close it, and leave all as it was</source>
        <translation>閉じて、元のままにする</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>ガイド(&amp;G)</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>ガイド</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>キー(&amp;K)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>&amp;About tern7-explorer</source>
        <translation>tern7-explorer について(&amp;A)</translation>
    </message>
    <message>
        <source>%1: choose what the result shows; type to search the menu. A click on the blue words of a column chooses another field, or sorts.</source>
        <translation>%1: 結果に表示するものを選びます。文字を入力するとメニューを検索できます。列の青い語をクリックすると、別のフィールドや並べ替えを選べます。</translation>
    </message>
    <message>
        <source>%1: choose a field, then click on the blue words to change what is compared. Brackets say whether all, any or none of their conditions apply.</source>
        <translation>%1: フィールドを選び、青い語をクリックして比較の内容を変えます。括弧は、その条件のすべて、いずれか、またはどれも当てはまらないことを表します。</translation>
    </message>
    <message>
        <source>%1: captions, formulas, sums and counts. With a sum there is one row for each combination of the other columns.</source>
        <translation>%1: 見出し、式、合計、件数を設定します。合計があると、他の列の組み合わせごとに 1 行になります。</translation>
    </message>
    <message>
        <source>%1: the tables that the query joins stand below the columns; where several ways lead from one to the other, choose the one that is meant.</source>
        <translation>%1: クエリが結合するテーブルは列の下に表示されます。経路がいくつかあるときは、意図したものを選びます。</translation>
    </message>
    <message>
        <source>%1: the rows appear below. A click on a header sorts by that column.</source>
        <translation>%1: 行が下に表示されます。見出しをクリックすると、その列で並べ替えます。</translation>
    </message>
    <message>
        <source>%1 keeps the query, %2 its rows for other programs.</source>
        <translation>%1 はクエリを、%2 はその行を他のプログラム用に保存します。</translation>
    </message>
    <message>
        <source>%1: every step can be taken back.</source>
        <translation>%1: どの操作も元に戻せます。</translation>
    </message>
    <message>
        <source>A query shows columns of a database, for the records that its conditions let through.</source>
        <translation>クエリは、条件に合うレコードについて、データベースの列を表示します。</translation>
    </message>
    <message>
        <source>%1 leads to other databases; a file of SQLite can be dropped on the window. Databases are only read, never changed.</source>
        <translation>%1 で他のデータベースを開けます。SQLite のファイルはウィンドウにドロップできます。データベースは読み取られるだけで、変更されることはありません。</translation>
    </message>
    <message>
        <source>On a condition or column</source>
        <translation>条件または列の上で</translation>
    </message>
    <message>
        <source>Between the blue words</source>
        <translation>青い語の間で</translation>
    </message>
    <message>
        <source>With Qt %1.</source>
        <translation>Qt %1 を使用しています。</translation>
    </message>
    <message>
        <source>Licence: MIT. Copyright 2026 the tern7 authors.</source>
        <translation>ライセンス: MIT。Copyright 2026 tern7 の作者。</translation>
    </message>
    <message>
        <source>About tern7-explorer</source>
        <translation>tern7-explorer について</translation>
    </message>
    <message>
        <source>The joins start from %1 now, and not from %2: the rows may be others.</source>
        <translation>結合は %2 ではなく %1 から始まります。行が変わる可能性があります。</translation>
    </message>
    <message>
        <source>Start from %1</source>
        <translation>%1 から始める</translation>
    </message>
</context>
<context>
    <name>tern7::TMessageBar</name>
    <message>
        <source>Close the message</source>
        <translation>メッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>tern7::TParameterDialog</name>
    <message>
        <source>Values of the query</source>
        <translation>クエリの値</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>A value is missing: %1</source>
        <translation>値がありません: %1</translation>
    </message>
</context>
<context>
    <name>tern7::TQueryRunner</name>
    <message>
        <source>No database is open</source>
        <translation>データベースが開かれていません</translation>
    </message>
</context>
<context>
    <name>tern7::TReadSQLDialog</name>
    <message>
        <source>Read SQL</source>
        <translation>SQL を読み込む</translation>
    </message>
    <message>
        <source>SELECT statement</source>
        <translation>SELECT 文</translation>
    </message>
    <message>
        <source>A &amp;SELECT statement over the tables of this database takes the place of the query:</source>
        <translation>このデータベースのテーブルに対する &amp;SELECT 文で、クエリを置き換えます:</translation>
    </message>
    <message>
        <source>&amp;Read</source>
        <translation>読み込む(&amp;R)</translation>
    </message>
</context>
<context>
    <name>tern7::TReportDialog</name>
    <message>
        <source>Understood</source>
        <translation>解釈済み</translation>
    </message>
    <message>
        <source>Kept as text</source>
        <translation>テキストとして保持</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>alias</source>
        <translation>別名</translation>
    </message>
    <message>
        <source>column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>condition</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>derived table</source>
        <translation>派生テーブル</translation>
    </message>
    <message>
        <source>grouping</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>join</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>parameter</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>rest</source>
        <translation>残り</translation>
    </message>
    <message>
        <source>sorting</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>statement</source>
        <translation>文</translation>
    </message>
    <message>
        <source>table</source>
        <translation>テーブル</translation>
    </message>
    <message>
        <source>a query can not say it</source>
        <translation>クエリでは表せません</translation>
    </message>
    <message>
        <source>another column has this alias</source>
        <translation>別の列がこの別名を使っています</translation>
    </message>
    <message>
        <source>another parameter has this name</source>
        <translation>別のパラメーターがこの名前を使っています</translation>
    </message>
    <message>
        <source>it is no column</source>
        <translation>列ではありません</translation>
    </message>
    <message>
        <source>it names what the structure does not have</source>
        <translation>構造にない名前を使っています</translation>
    </message>
    <message>
        <source>no column and no condition uses it</source>
        <translation>列でも条件でも使われていません</translation>
    </message>
    <message>
        <source>no field or operator of the structure says it</source>
        <translation>これを表すフィールドや演算子が構造にありません</translation>
    </message>
    <message>
        <source>no link of the structure</source>
        <translation>構造のリンクではありません</translation>
    </message>
    <message>
        <source>the columns ask for other groups</source>
        <translation>列が別のグループ化を必要とします</translation>
    </message>
    <message>
        <source>the query joins the tables in another order</source>
        <translation>クエリは別の順序でテーブルを結合します</translation>
    </message>
    <message>
        <source>the structure has no such table</source>
        <translation>構造にそのテーブルはありません</translation>
    </message>
    <message>
        <source>the structure joins it in another way</source>
        <translation>構造では別の方法で結合します</translation>
    </message>
    <message>
        <source>the structure joins these tables in another way</source>
        <translation>構造ではこれらのテーブルを別の方法で結合します</translation>
    </message>
    <message>
        <source>What was read</source>
        <translation>読み込み結果</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>部分</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Parts of the statement</source>
        <translation>文の各部分</translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) of the statement were left out: the query does not say the same.</source>
        <translation>
            <numerusform>文の %n か所が除外されました。クエリの意味は元の文と同じではありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n part(s) were kept as text.</source>
        <translation>
            <numerusform>%n か所がテキストとして保持されました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything was understood.</source>
        <translation>すべて解釈されました。</translation>
    </message>
    <message>
        <source>&amp;Keep the query</source>
        <translation>クエリを残す(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>the string is not closed</source>
        <translation>文字列が閉じられていません</translation>
    </message>
    <message>
        <source>Line, column</source>
        <translation>行、列</translation>
    </message>
    <message>
        <source>the parser does not read it</source>
        <translation>パーサーはこれを読みません</translation>
    </message>
    <message>
        <source>no field has this expression</source>
        <translation>この式を持つフィールドはありません</translation>
    </message>
    <message>
        <source>no operator has this form</source>
        <translation>この形の演算子はありません</translation>
    </message>
    <message>
        <source>a condition keeps this table, which nothing else uses</source>
        <translation>ほかに使われていないこの表は、条件として残されます</translation>
    </message>
    <message>
        <source>a condition keeps this join, which the structure makes by way of other tables</source>
        <translation>構造では別の表を経由するこの結合は、条件として残されます</translation>
    </message>
    <message>
        <source>only the syntax sql1 leaves out the structure&apos;s outer join with it</source>
        <translation>構造にあるこの表との外部結合を省くのは構文 sql1 だけです</translation>
    </message>
    <message>
        <source>a table of the sub-select has the name that the structure gives another</source>
        <translation>副問い合わせの表が、構造で別の表に付けられた名前を持っています</translation>
    </message>
    <message>
        <source>several tables have a column of this name</source>
        <translation>この名前の列が複数の表にあります</translation>
    </message>
    <message>
        <source>the query needs a further table</source>
        <translation>クエリにはもう一つの表が必要です</translation>
    </message>
    <message>
        <source>the columns that the tables are joined by would come twice</source>
        <translation>表を結合する列が二重に現れます</translation>
    </message>
</context>
<context>
    <name>tern7::TResultModel</name>
    <message>
        <source>No value</source>
        <translation>値なし</translation>
    </message>
</context>
<context>
    <name>tern7::TResultView</name>
    <message>
        <source>Result rows</source>
        <translation>結果の行</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n 行</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 s</source>
        <translation>%1、%2 秒</translation>
    </message>
    <message>
        <source>the first %1; there are more</source>
        <translation>最初の %1。さらにあります</translation>
    </message>
    <message>
        <source>The database refused the query</source>
        <translation>データベースがクエリを拒否しました</translation>
    </message>
    <message>
        <source>Cancelled after %1 s</source>
        <translation>%1 秒後にキャンセルしました</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>実行中...</translation>
    </message>
    <message>
        <source>Running... %1, %2 s</source>
        <translation>実行中... %1、%2 秒</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>まだ実行していません</translation>
    </message>
    <message>
        <source>Rows of the query before the last changes · %1</source>
        <translation>最後の変更前のクエリの行 · %1</translation>
    </message>
</context>
</TS>
